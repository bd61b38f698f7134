// FIR filters whose samples are words and whose taps are integers.
#include "filter/fir/word_calls.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {

TAV_BIND(FIRGetStateSize_16s, &fir::get_words_size<FIRState_16s>)
TAV_BIND(FIRInit_16s, &fir::init_words<FIRState_16s>)
TAV_BIND(FIRInitAlloc_16s, &fir::init_alloc_words<FIRState_16s>)
TAV_BIND(FIRFree_16s, &fir::free_state<FIRState_16s>)
TAV_BIND(FIR_16s_Sfs, &fir::words_block<FIRState_16s>)
TAV_BIND(FIR_16s_ISfs, &fir::words_in_place<FIRState_16s>)
TAV_BIND(FIROne_16s_Sfs, &fir::words_one<FIRState_16s>)
TAV_BIND(FIRGetTaps_16s, &fir::get_word_taps<FIRState_16s>)
TAV_BIND(FIRSetTaps_16s, &fir::set_word_taps<FIRState_16s>)
TAV_BIND(FIRGetDlyLine_16s, &fir::get_delay<FIRState_16s>)
TAV_BIND(FIRSetDlyLine_16s, &fir::set_delay<FIRState_16s>)

TAV_BIND(FIRGetStateSize32s_16s, &fir::get_words_size<FIRState32s_16s>)
TAV_BIND(FIRInit32s_16s, &fir::init_words<FIRState32s_16s>)
TAV_BIND(FIRInitAlloc32s_16s, &fir::init_alloc_words<FIRState32s_16s>)
TAV_BIND(FIRFree32s_16s, &fir::free_state<FIRState32s_16s>)
TAV_BIND(FIR32s_16s_Sfs, &fir::words_block<FIRState32s_16s>)
TAV_BIND(FIR32s_16s_ISfs, &fir::words_in_place<FIRState32s_16s>)
TAV_BIND(FIROne32s_16s_Sfs, &fir::words_one<FIRState32s_16s>)
TAV_BIND(FIRGetTaps32s_16s, &fir::get_word_taps<FIRState32s_16s>)
TAV_BIND(FIRSetTaps32s_16s, &fir::set_word_taps<FIRState32s_16s>)
TAV_BIND(FIRGetDlyLine32s_16s, &fir::get_delay<FIRState32s_16s>)
TAV_BIND(FIRSetDlyLine32s_16s, &fir::set_delay<FIRState32s_16s>)
TAV_BIND(FIRGetStateSize32s_16s32f, &fir::get_words_size<FIRState32s_16s>)
TAV_BIND(FIRInit32s_16s32f, &fir::init_words_of_floats<FIRState32s_16s>)
TAV_BIND(FIRInitAlloc32s_16s32f, &fir::init_alloc_words_of_floats<FIRState32s_16s>)
TAV_BIND(FIRGetTaps32s_16s32f, &fir::get_word_taps_as_floats<FIRState32s_16s>)
TAV_BIND(FIRSetTaps32s_16s32f, &fir::set_word_taps_from_floats<FIRState32s_16s>)

TAV_BIND(FIRGetStateSize32sc_16sc, &fir::get_words_size<FIRState32sc_16sc>)
TAV_BIND(FIRInit32sc_16sc, &fir::init_words<FIRState32sc_16sc>)
TAV_BIND(FIRInitAlloc32sc_16sc, &fir::init_alloc_words<FIRState32sc_16sc>)
TAV_BIND(FIRFree32sc_16sc, &fir::free_state<FIRState32sc_16sc>)
TAV_BIND(FIR32sc_16sc_Sfs, &fir::words_block<FIRState32sc_16sc>)
TAV_BIND(FIR32sc_16sc_ISfs, &fir::words_in_place<FIRState32sc_16sc>)
TAV_BIND(FIROne32sc_16sc_Sfs, &fir::words_one<FIRState32sc_16sc>)
TAV_BIND(FIRGetTaps32sc_16sc, &fir::get_word_taps<FIRState32sc_16sc>)
TAV_BIND(FIRSetTaps32sc_16sc, &fir::set_word_taps<FIRState32sc_16sc>)
TAV_BIND(FIRGetDlyLine32sc_16sc, &fir::get_delay<FIRState32sc_16sc>)
TAV_BIND(FIRSetDlyLine32sc_16sc, &fir::set_delay<FIRState32sc_16sc>)
TAV_BIND(FIRGetStateSize32sc_16sc32fc, &fir::get_words_size<FIRState32sc_16sc>)
TAV_BIND(FIRInit32sc_16sc32fc, &fir::init_words_of_floats<FIRState32sc_16sc>)
TAV_BIND(FIRInitAlloc32sc_16sc32fc, &fir::init_alloc_words_of_floats<FIRState32sc_16sc>)
TAV_BIND(FIRGetTaps32sc_16sc32fc, &fir::get_word_taps_as_floats<FIRState32sc_16sc>)
TAV_BIND(FIRSetTaps32sc_16sc32fc, &fir::set_word_taps_from_floats<FIRState32sc_16sc>)

}  // namespace tav::TAV_VARIANT
