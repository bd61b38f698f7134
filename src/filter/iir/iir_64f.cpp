// The calls of the IIR filters that compute in doubles.
#include "filter/iir/workers.h"

namespace tav::TAV_VARIANT {

using iir::arbitrary_order;

TAV_BIND(IIRGetStateSize_64f, (&iir::state_size<arbitrary_order, IIRState_64f>))
TAV_BIND(IIRInit_64f, (&iir::init<arbitrary_order, IIRState_64f>))
TAV_BIND(IIRInitAlloc_64f, (&iir::init_alloc<arbitrary_order, IIRState_64f>))
TAV_BIND(IIRFree_64f, &iir::free_state<IIRState_64f>)
TAV_BIND(IIRSetTaps_64f, &iir::set_taps<IIRState_64f>)
TAV_BIND(IIRGetDlyLine_64f, &iir::get_delay<IIRState_64f>)
TAV_BIND(IIRSetDlyLine_64f, &iir::set_delay<IIRState_64f>)
TAV_BIND(IIR_64f, &iir::filter<IIRState_64f>)
TAV_BIND(IIR_64f_I, &iir::filter_in_place<IIRState_64f>)
TAV_BIND(IIROne_64f, &iir::filter_one<IIRState_64f>)

TAV_BIND(IIRGetStateSize64f_32f, (&iir::state_size<arbitrary_order, IIRState64f_32f>))
TAV_BIND(IIRInit64f_32f, (&iir::init<arbitrary_order, IIRState64f_32f>))
TAV_BIND(IIRInitAlloc64f_32f, (&iir::init_alloc<arbitrary_order, IIRState64f_32f>))
TAV_BIND(IIRFree64f_32f, &iir::free_state<IIRState64f_32f>)
TAV_BIND(IIRSetTaps64f_32f, &iir::set_taps<IIRState64f_32f>)
TAV_BIND(IIRGetDlyLine64f_32f, &iir::get_delay<IIRState64f_32f>)
TAV_BIND(IIRSetDlyLine64f_32f, &iir::set_delay<IIRState64f_32f>)
TAV_BIND(IIR64f_32f, &iir::filter<IIRState64f_32f>)
TAV_BIND(IIR64f_32f_I, &iir::filter_in_place<IIRState64f_32f>)
TAV_BIND(IIROne64f_32f, &iir::filter_one<IIRState64f_32f>)

TAV_BIND(IIRGetStateSize64f_32s, (&iir::state_size<arbitrary_order, IIRState64f_32s>))
TAV_BIND(IIRInit64f_32s, (&iir::init<arbitrary_order, IIRState64f_32s>))
TAV_BIND(IIRInitAlloc64f_32s, (&iir::init_alloc<arbitrary_order, IIRState64f_32s>))
TAV_BIND(IIRFree64f_32s, &iir::free_state<IIRState64f_32s>)
TAV_BIND(IIRSetTaps64f_32s, &iir::set_taps<IIRState64f_32s>)
TAV_BIND(IIRGetDlyLine64f_32s, &iir::get_delay_but_df1<IIRState64f_32s>)
TAV_BIND(IIRSetDlyLine64f_32s, &iir::set_delay_but_df1<IIRState64f_32s>)
TAV_BIND(IIR64f_32s_Sfs, &iir::filter_scaled<IIRState64f_32s>)
TAV_BIND(IIR64f_32s_ISfs, &iir::filter_scaled_in_place<IIRState64f_32s>)
TAV_BIND(IIROne64f_32s_Sfs, &iir::filter_one_scaled<IIRState64f_32s>)

TAV_BIND(IIRGetStateSize64f_16s, (&iir::state_size<arbitrary_order, IIRState64f_16s>))
TAV_BIND(IIRInit64f_16s, (&iir::init<arbitrary_order, IIRState64f_16s>))
TAV_BIND(IIRInitAlloc64f_16s, (&iir::init_alloc<arbitrary_order, IIRState64f_16s>))
TAV_BIND(IIRFree64f_16s, &iir::free_state<IIRState64f_16s>)
TAV_BIND(IIRSetTaps64f_16s, &iir::set_taps<IIRState64f_16s>)
TAV_BIND(IIRGetDlyLine64f_16s, &iir::get_delay<IIRState64f_16s>)
TAV_BIND(IIRSetDlyLine64f_16s, &iir::set_delay<IIRState64f_16s>)
TAV_BIND(IIR64f_16s_Sfs, &iir::filter_scaled<IIRState64f_16s>)
TAV_BIND(IIR64f_16s_ISfs, &iir::filter_scaled_in_place<IIRState64f_16s>)
TAV_BIND(IIROne64f_16s_Sfs, &iir::filter_one_scaled<IIRState64f_16s>)

}  // namespace tav::TAV_VARIANT
