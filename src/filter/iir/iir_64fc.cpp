// The calls of the IIR filters that compute in complex doubles.
#include "filter/iir/workers.h"

namespace tav::TAV_VARIANT {

using iir::arbitrary_order;

TAV_BIND(IIRGetStateSize_64fc, (&iir::state_size<arbitrary_order, IIRState_64fc>))
TAV_BIND(IIRInit_64fc, (&iir::init<arbitrary_order, IIRState_64fc>))
TAV_BIND(IIRInitAlloc_64fc, (&iir::init_alloc<arbitrary_order, IIRState_64fc>))
TAV_BIND(IIRFree_64fc, &iir::free_state<IIRState_64fc>)
TAV_BIND(IIRSetTaps_64fc, &iir::set_taps<IIRState_64fc>)
TAV_BIND(IIRGetDlyLine_64fc, &iir::get_delay<IIRState_64fc>)
TAV_BIND(IIRSetDlyLine_64fc, &iir::set_delay<IIRState_64fc>)
TAV_BIND(IIR_64fc, &iir::filter<IIRState_64fc>)
TAV_BIND(IIR_64fc_I, &iir::filter_in_place<IIRState_64fc>)
TAV_BIND(IIROne_64fc, &iir::filter_one<IIRState_64fc>)

TAV_BIND(IIRGetStateSize64fc_32fc, (&iir::state_size<arbitrary_order, IIRState64fc_32fc>))
TAV_BIND(IIRInit64fc_32fc, (&iir::init<arbitrary_order, IIRState64fc_32fc>))
TAV_BIND(IIRInitAlloc64fc_32fc, (&iir::init_alloc<arbitrary_order, IIRState64fc_32fc>))
TAV_BIND(IIRFree64fc_32fc, &iir::free_state<IIRState64fc_32fc>)
TAV_BIND(IIRSetTaps64fc_32fc, &iir::set_taps<IIRState64fc_32fc>)
TAV_BIND(IIRGetDlyLine64fc_32fc, &iir::get_delay<IIRState64fc_32fc>)
TAV_BIND(IIRSetDlyLine64fc_32fc, &iir::set_delay<IIRState64fc_32fc>)
TAV_BIND(IIR64fc_32fc, &iir::filter<IIRState64fc_32fc>)
TAV_BIND(IIR64fc_32fc_I, &iir::filter_in_place<IIRState64fc_32fc>)
TAV_BIND(IIROne64fc_32fc, &iir::filter_one<IIRState64fc_32fc>)

TAV_BIND(IIRGetStateSize64fc_32sc, (&iir::state_size<arbitrary_order, IIRState64fc_32sc>))
TAV_BIND(IIRInit64fc_32sc, (&iir::init<arbitrary_order, IIRState64fc_32sc>))
TAV_BIND(IIRInitAlloc64fc_32sc, (&iir::init_alloc<arbitrary_order, IIRState64fc_32sc>))
TAV_BIND(IIRFree64fc_32sc, &iir::free_state<IIRState64fc_32sc>)
TAV_BIND(IIRSetTaps64fc_32sc, &iir::set_taps<IIRState64fc_32sc>)
TAV_BIND(IIRGetDlyLine64fc_32sc, &iir::get_delay<IIRState64fc_32sc>)
TAV_BIND(IIRSetDlyLine64fc_32sc, &iir::set_delay<IIRState64fc_32sc>)
TAV_BIND(IIR64fc_32sc_Sfs, &iir::filter_scaled<IIRState64fc_32sc>)
TAV_BIND(IIR64fc_32sc_ISfs, &iir::filter_scaled_in_place<IIRState64fc_32sc>)
TAV_BIND(IIROne64fc_32sc_Sfs, &iir::filter_one_scaled<IIRState64fc_32sc>)

TAV_BIND(IIRGetStateSize64fc_16sc, (&iir::state_size<arbitrary_order, IIRState64fc_16sc>))
TAV_BIND(IIRInit64fc_16sc, (&iir::init<arbitrary_order, IIRState64fc_16sc>))
TAV_BIND(IIRInitAlloc64fc_16sc, (&iir::init_alloc<arbitrary_order, IIRState64fc_16sc>))
TAV_BIND(IIRFree64fc_16sc, &iir::free_state<IIRState64fc_16sc>)
TAV_BIND(IIRSetTaps64fc_16sc, &iir::set_taps<IIRState64fc_16sc>)
TAV_BIND(IIRGetDlyLine64fc_16sc, &iir::get_delay<IIRState64fc_16sc>)
TAV_BIND(IIRSetDlyLine64fc_16sc, &iir::set_delay<IIRState64fc_16sc>)
TAV_BIND(IIR64fc_16sc_Sfs, &iir::filter_scaled<IIRState64fc_16sc>)
TAV_BIND(IIR64fc_16sc_ISfs, &iir::filter_scaled_in_place<IIRState64fc_16sc>)
TAV_BIND(IIROne64fc_16sc_Sfs, &iir::filter_one_scaled<IIRState64fc_16sc>)

}  // namespace tav::TAV_VARIANT
