// FIR filters that compute in complex singles.
#include "filter/fir/float_calls.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FIRGetStateSize_32fc, &fir::get_size<fir::set_up_of<FIRState_32fc>>)
TAV_BIND(FIRInit_32fc, &fir::init<fir::set_up_of<FIRState_32fc>>)
TAV_BIND(FIRInitAlloc_32fc, &fir::init_alloc<fir::set_up_of<FIRState_32fc>>)
TAV_BIND(FIRFree_32fc, &fir::free_state<FIRState_32fc>)
TAV_BIND(FIR_32fc, &fir::block<FIRState_32fc>)
TAV_BIND(FIR_32fc_I, &fir::block_in_place<FIRState_32fc>)
TAV_BIND(FIROne_32fc, &fir::one<FIRState_32fc>)
TAV_BIND(FIRGetTaps_32fc, &fir::get_taps<FIRState_32fc>)
TAV_BIND(FIRSetTaps_32fc, &fir::set_taps_of<FIRState_32fc>)
TAV_BIND(FIRGetDlyLine_32fc, &fir::get_delay<FIRState_32fc>)
TAV_BIND(FIRSetDlyLine_32fc, &fir::set_delay<FIRState_32fc>)

TAV_BIND(FIRGetStateSize32fc_16sc, &fir::get_size<fir::set_up_of<FIRState32fc_16sc>>)
TAV_BIND(FIRInit32fc_16sc, &fir::init<fir::set_up_of<FIRState32fc_16sc>>)
TAV_BIND(FIRInitAlloc32fc_16sc, &fir::init_alloc<fir::set_up_of<FIRState32fc_16sc>>)
TAV_BIND(FIRFree32fc_16sc, &fir::free_state<FIRState32fc_16sc>)
TAV_BIND(FIR32fc_16sc_Sfs, &fir::block_scaled<FIRState32fc_16sc>)
TAV_BIND(FIR32fc_16sc_ISfs, &fir::block_in_place_scaled<FIRState32fc_16sc>)
TAV_BIND(FIROne32fc_16sc_Sfs, &fir::one_scaled<FIRState32fc_16sc>)
TAV_BIND(FIRGetTaps32fc_16sc, &fir::get_taps<FIRState32fc_16sc>)
TAV_BIND(FIRSetTaps32fc_16sc, &fir::set_taps_of<FIRState32fc_16sc>)
TAV_BIND(FIRGetDlyLine32fc_16sc, &fir::get_delay<FIRState32fc_16sc>)
TAV_BIND(FIRSetDlyLine32fc_16sc, &fir::set_delay<FIRState32fc_16sc>)

}  // namespace tav::TAV_VARIANT
