// FIR filters that compute in real singles.
#include "filter/fir/float_calls.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FIRGetStateSize_32f, &fir::get_size<fir::set_up_of<FIRState_32f>>)
TAV_BIND(FIRInit_32f, &fir::init<fir::set_up_of<FIRState_32f>>)
TAV_BIND(FIRInitAlloc_32f, &fir::init_alloc<fir::set_up_of<FIRState_32f>>)
TAV_BIND(FIRFree_32f, &fir::free_state<FIRState_32f>)
TAV_BIND(FIR_32f, &fir::block<FIRState_32f>)
TAV_BIND(FIR_32f_I, &fir::block_in_place<FIRState_32f>)
TAV_BIND(FIROne_32f, &fir::one<FIRState_32f>)
TAV_BIND(FIRGetTaps_32f, &fir::get_taps<FIRState_32f>)
TAV_BIND(FIRSetTaps_32f, &fir::set_taps_of<FIRState_32f>)
TAV_BIND(FIRGetDlyLine_32f, &fir::get_delay<FIRState_32f>)
TAV_BIND(FIRSetDlyLine_32f, &fir::set_delay<FIRState_32f>)

TAV_BIND(FIRGetStateSize32f_16s, &fir::get_size<fir::set_up_of<FIRState32f_16s>>)
TAV_BIND(FIRInit32f_16s, &fir::init<fir::set_up_of<FIRState32f_16s>>)
TAV_BIND(FIRInitAlloc32f_16s, &fir::init_alloc<fir::set_up_of<FIRState32f_16s>>)
TAV_BIND(FIRFree32f_16s, &fir::free_state<FIRState32f_16s>)
TAV_BIND(FIR32f_16s_Sfs, &fir::block_scaled<FIRState32f_16s>)
TAV_BIND(FIR32f_16s_ISfs, &fir::block_in_place_scaled<FIRState32f_16s>)
TAV_BIND(FIROne32f_16s_Sfs, &fir::one_scaled<FIRState32f_16s>)
TAV_BIND(FIRGetTaps32f_16s, &fir::get_taps<FIRState32f_16s>)
TAV_BIND(FIRSetTaps32f_16s, &fir::set_taps_of<FIRState32f_16s>)
TAV_BIND(FIRGetDlyLine32f_16s, &fir::get_delay<FIRState32f_16s>)
TAV_BIND(FIRSetDlyLine32f_16s, &fir::set_delay<FIRState32f_16s>)

}  // namespace tav::TAV_VARIANT
