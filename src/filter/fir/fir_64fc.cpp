// FIR filters that compute in complex doubles.
#include "filter/fir/float_calls.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FIRGetStateSize_64fc, &fir::get_size<fir::set_up_of<FIRState_64fc>>)
TAV_BIND(FIRInit_64fc, &fir::init<fir::set_up_of<FIRState_64fc>>)
TAV_BIND(FIRInitAlloc_64fc, &fir::init_alloc<fir::set_up_of<FIRState_64fc>>)
TAV_BIND(FIRFree_64fc, &fir::free_state<FIRState_64fc>)
TAV_BIND(FIR_64fc, &fir::block<FIRState_64fc>)
TAV_BIND(FIR_64fc_I, &fir::block_in_place<FIRState_64fc>)
TAV_BIND(FIROne_64fc, &fir::one<FIRState_64fc>)
TAV_BIND(FIRGetTaps_64fc, &fir::get_taps<FIRState_64fc>)
TAV_BIND(FIRSetTaps_64fc, &fir::set_taps_of<FIRState_64fc>)
TAV_BIND(FIRGetDlyLine_64fc, &fir::get_delay<FIRState_64fc>)
TAV_BIND(FIRSetDlyLine_64fc, &fir::set_delay<FIRState_64fc>)

TAV_BIND(FIRGetStateSize64fc_32fc, &fir::get_size<fir::set_up_of<FIRState64fc_32fc>>)
TAV_BIND(FIRInit64fc_32fc, &fir::init<fir::set_up_of<FIRState64fc_32fc>>)
TAV_BIND(FIRInitAlloc64fc_32fc, &fir::init_alloc<fir::set_up_of<FIRState64fc_32fc>>)
TAV_BIND(FIRFree64fc_32fc, &fir::free_state<FIRState64fc_32fc>)
TAV_BIND(FIR64fc_32fc, &fir::block<FIRState64fc_32fc>)
TAV_BIND(FIR64fc_32fc_I, &fir::block_in_place<FIRState64fc_32fc>)
TAV_BIND(FIROne64fc_32fc, &fir::one<FIRState64fc_32fc>)
TAV_BIND(FIRGetTaps64fc_32fc, &fir::get_taps<FIRState64fc_32fc>)
TAV_BIND(FIRSetTaps64fc_32fc, &fir::set_taps_of<FIRState64fc_32fc>)
TAV_BIND(FIRGetDlyLine64fc_32fc, &fir::get_delay<FIRState64fc_32fc>)
TAV_BIND(FIRSetDlyLine64fc_32fc, &fir::set_delay<FIRState64fc_32fc>)

TAV_BIND(FIRGetStateSize64fc_32sc, &fir::get_size<fir::set_up_of<FIRState64fc_32sc>>)
TAV_BIND(FIRInit64fc_32sc, &fir::init<fir::set_up_of<FIRState64fc_32sc>>)
TAV_BIND(FIRInitAlloc64fc_32sc, &fir::init_alloc<fir::set_up_of<FIRState64fc_32sc>>)
TAV_BIND(FIRFree64fc_32sc, &fir::free_state<FIRState64fc_32sc>)
TAV_BIND(FIR64fc_32sc_Sfs, &fir::block_scaled<FIRState64fc_32sc>)
TAV_BIND(FIR64fc_32sc_ISfs, &fir::block_in_place_scaled<FIRState64fc_32sc>)
TAV_BIND(FIROne64fc_32sc_Sfs, &fir::one_scaled<FIRState64fc_32sc>)
TAV_BIND(FIRGetTaps64fc_32sc, &fir::get_taps<FIRState64fc_32sc>)
TAV_BIND(FIRSetTaps64fc_32sc, &fir::set_taps_of<FIRState64fc_32sc>)
TAV_BIND(FIRGetDlyLine64fc_32sc, &fir::get_delay<FIRState64fc_32sc>)
TAV_BIND(FIRSetDlyLine64fc_32sc, &fir::set_delay<FIRState64fc_32sc>)

TAV_BIND(FIRGetStateSize64fc_16sc, &fir::get_size<fir::set_up_of<FIRState64fc_16sc>>)
TAV_BIND(FIRInit64fc_16sc, &fir::init<fir::set_up_of<FIRState64fc_16sc>>)
TAV_BIND(FIRInitAlloc64fc_16sc, &fir::init_alloc<fir::set_up_of<FIRState64fc_16sc>>)
TAV_BIND(FIRFree64fc_16sc, &fir::free_state<FIRState64fc_16sc>)
TAV_BIND(FIR64fc_16sc_Sfs, &fir::block_scaled<FIRState64fc_16sc>)
TAV_BIND(FIR64fc_16sc_ISfs, &fir::block_in_place_scaled<FIRState64fc_16sc>)
TAV_BIND(FIROne64fc_16sc_Sfs, &fir::one_scaled<FIRState64fc_16sc>)
TAV_BIND(FIRGetTaps64fc_16sc, &fir::get_taps<FIRState64fc_16sc>)
TAV_BIND(FIRSetTaps64fc_16sc, &fir::set_taps_of<FIRState64fc_16sc>)
TAV_BIND(FIRGetDlyLine64fc_16sc, &fir::get_delay<FIRState64fc_16sc>)
TAV_BIND(FIRSetDlyLine64fc_16sc, &fir::set_delay<FIRState64fc_16sc>)

}  // namespace tav::TAV_VARIANT
