// The Direct calls with taps in integers of 32 bits.
#include "filter/fir/direct_calls.h"
#include "filter/fir/word_planes.h"
#include "filter/fir/word_stage.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {
namespace {

template <class Taps, class Data>
using integer_direct =
    fir::factored_direct_calls<fir::direct_form<Taps, Data, fir::word_planes<Taps, Data>, fir::word_stage>>;

using direct_32s_16s   = integer_direct<Tav32s, Tav16s>;
using direct_32sc_16sc = integer_direct<Tav32sc, Tav16sc>;

}  // namespace

TAV_BIND(FIR32s_Direct_16s_Sfs, &direct_32s_16s::block)
TAV_BIND(FIR32s_Direct_16s_ISfs, &direct_32s_16s::in_place)
TAV_BIND(FIROne32s_Direct_16s_Sfs, &direct_32s_16s::one)
TAV_BIND(FIROne32s_Direct_16s_ISfs, &direct_32s_16s::one_in_place)

TAV_BIND(FIR32sc_Direct_16sc_Sfs, &direct_32sc_16sc::block)
TAV_BIND(FIR32sc_Direct_16sc_ISfs, &direct_32sc_16sc::in_place)
TAV_BIND(FIROne32sc_Direct_16sc_Sfs, &direct_32sc_16sc::one)
TAV_BIND(FIROne32sc_Direct_16sc_ISfs, &direct_32sc_16sc::one_in_place)

}  // namespace tav::TAV_VARIANT
