// The calls of the IIR filters that compute in complex singles.
#include "filter/iir/workers.h"

namespace tav::TAV_VARIANT {

using iir::arbitrary_order;

TAV_BIND(IIRGetStateSize_32fc, (&iir::state_size<arbitrary_order, IIRState_32fc>))
TAV_BIND(IIRInit_32fc, (&iir::init<arbitrary_order, IIRState_32fc>))
TAV_BIND(IIRInitAlloc_32fc, (&iir::init_alloc<arbitrary_order, IIRState_32fc>))
TAV_BIND(IIRFree_32fc, &iir::free_state<IIRState_32fc>)
TAV_BIND(IIRSetTaps_32fc, &iir::set_taps<IIRState_32fc>)
TAV_BIND(IIRGetDlyLine_32fc, &iir::get_delay<IIRState_32fc>)
TAV_BIND(IIRSetDlyLine_32fc, &iir::set_delay<IIRState_32fc>)
TAV_BIND(IIR_32fc, &iir::filter<IIRState_32fc>)
TAV_BIND(IIR_32fc_I, &iir::filter_in_place<IIRState_32fc>)
TAV_BIND(IIROne_32fc, &iir::filter_one<IIRState_32fc>)

TAV_BIND(IIRGetStateSize32fc_16sc, (&iir::state_size<arbitrary_order, IIRState32fc_16sc>))
TAV_BIND(IIRInit32fc_16sc, (&iir::init<arbitrary_order, IIRState32fc_16sc>))
TAV_BIND(IIRInitAlloc32fc_16sc, (&iir::init_alloc<arbitrary_order, IIRState32fc_16sc>))
TAV_BIND(IIRFree32fc_16sc, &iir::free_state<IIRState32fc_16sc>)
TAV_BIND(IIRSetTaps32fc_16sc, &iir::set_taps<IIRState32fc_16sc>)
TAV_BIND(IIRGetDlyLine32fc_16sc, &iir::get_delay<IIRState32fc_16sc>)
TAV_BIND(IIRSetDlyLine32fc_16sc, &iir::set_delay<IIRState32fc_16sc>)
TAV_BIND(IIR32fc_16sc_Sfs, &iir::filter_scaled<IIRState32fc_16sc>)
TAV_BIND(IIR32fc_16sc_ISfs, &iir::filter_scaled_in_place<IIRState32fc_16sc>)
TAV_BIND(IIROne32fc_16sc_Sfs, &iir::filter_one_scaled<IIRState32fc_16sc>)

TAV_BIND(IIRGetStateSize32sc_16sc, (&iir::state_size<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRGetStateSize32sc_16sc32fc, (&iir::state_size<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRInit32sc_16sc, (&iir::init_converted<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRInitAlloc32sc_16sc, (&iir::init_alloc_converted<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRInit32sc_16sc32fc, (&iir::init<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRInitAlloc32sc_16sc32fc, (&iir::init_alloc<arbitrary_order, IIRState32sc_16sc>))
TAV_BIND(IIRFree32sc_16sc, &iir::free_state<IIRState32sc_16sc>)
TAV_BIND(IIRSetTaps32sc_16sc, &iir::set_taps_converted<IIRState32sc_16sc>)
TAV_BIND(IIRSetTaps32sc_16sc32fc, &iir::set_taps<IIRState32sc_16sc>)
TAV_BIND(IIRGetDlyLine32sc_16sc, &iir::get_delay<IIRState32sc_16sc>)
TAV_BIND(IIRSetDlyLine32sc_16sc, &iir::set_delay<IIRState32sc_16sc>)
TAV_BIND(IIR32sc_16sc_Sfs, &iir::filter_scaled<IIRState32sc_16sc>)
TAV_BIND(IIR32sc_16sc_ISfs, &iir::filter_scaled_in_place<IIRState32sc_16sc>)
TAV_BIND(IIROne32sc_16sc_Sfs, &iir::filter_one_scaled<IIRState32sc_16sc>)

}  // namespace tav::TAV_VARIANT
