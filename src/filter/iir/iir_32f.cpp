// The calls of the IIR filters that compute in singles.
#include "filter/iir/workers.h"

namespace tav::TAV_VARIANT {

using iir::arbitrary_order;

TAV_BIND(IIRGetStateSize_32f, (&iir::state_size<arbitrary_order, IIRState_32f>))
TAV_BIND(IIRInit_32f, (&iir::init<arbitrary_order, IIRState_32f>))
TAV_BIND(IIRInitAlloc_32f, (&iir::init_alloc<arbitrary_order, IIRState_32f>))
TAV_BIND(IIRFree_32f, &iir::free_state<IIRState_32f>)
TAV_BIND(IIRSetTaps_32f, &iir::set_taps<IIRState_32f>)
TAV_BIND(IIRGetDlyLine_32f, &iir::get_delay<IIRState_32f>)
TAV_BIND(IIRSetDlyLine_32f, &iir::set_delay<IIRState_32f>)
TAV_BIND(IIR_32f, &iir::filter<IIRState_32f>)
TAV_BIND(IIR_32f_I, &iir::filter_in_place<IIRState_32f>)
TAV_BIND(IIROne_32f, &iir::filter_one<IIRState_32f>)

TAV_BIND(IIRGetStateSize32f_16s, (&iir::state_size<arbitrary_order, IIRState32f_16s>))
TAV_BIND(IIRInit32f_16s, (&iir::init<arbitrary_order, IIRState32f_16s>))
TAV_BIND(IIRInitAlloc32f_16s, (&iir::init_alloc<arbitrary_order, IIRState32f_16s>))
TAV_BIND(IIRFree32f_16s, &iir::free_state<IIRState32f_16s>)
TAV_BIND(IIRSetTaps32f_16s, &iir::set_taps<IIRState32f_16s>)
TAV_BIND(IIRGetDlyLine32f_16s, &iir::get_delay<IIRState32f_16s>)
TAV_BIND(IIRSetDlyLine32f_16s, &iir::set_delay<IIRState32f_16s>)
TAV_BIND(IIR32f_16s_Sfs, &iir::filter_scaled<IIRState32f_16s>)
TAV_BIND(IIR32f_16s_ISfs, &iir::filter_scaled_in_place<IIRState32f_16s>)
TAV_BIND(IIROne32f_16s_Sfs, &iir::filter_one_scaled<IIRState32f_16s>)

TAV_BIND(IIRGetStateSize32s_16s, (&iir::state_size<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRGetStateSize32s_16s32f, (&iir::state_size<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRInit32s_16s, (&iir::init_converted<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRInitAlloc32s_16s, (&iir::init_alloc_converted<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRInit32s_16s32f, (&iir::init<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRInitAlloc32s_16s32f, (&iir::init_alloc<arbitrary_order, IIRState32s_16s>))
TAV_BIND(IIRFree32s_16s, &iir::free_state<IIRState32s_16s>)
TAV_BIND(IIRSetTaps32s_16s, &iir::set_taps_converted<IIRState32s_16s>)
TAV_BIND(IIRSetTaps32s_16s32f, &iir::set_taps<IIRState32s_16s>)
TAV_BIND(IIRGetDlyLine32s_16s, &iir::get_delay<IIRState32s_16s>)
TAV_BIND(IIRSetDlyLine32s_16s, &iir::set_delay<IIRState32s_16s>)
TAV_BIND(IIR32s_16s_Sfs, &iir::filter_scaled<IIRState32s_16s>)
TAV_BIND(IIR32s_16s_ISfs, &iir::filter_scaled_in_place<IIRState32s_16s>)
TAV_BIND(IIROne32s_16s_Sfs, &iir::filter_one_scaled<IIRState32s_16s>)

}  // namespace tav::TAV_VARIANT
