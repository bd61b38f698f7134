// The Direct calls with taps in floats.
#include "filter/fir/direct_calls.h"
#include "filter/fir/direct_sums.h"
#include "filter/fir/half_away.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {
namespace {

// The one type of taps whose sums are wider is that of singles on their own.
template <class Taps, class Data, class Sums = Taps>
using plain_direct = fir::direct_calls<fir::direct_form<Taps, Data, fir::direct_sums<Taps, Sums>, fir::unscaled>>;
template <class Taps, class Data>
using scaled_direct =
    fir::direct_calls<fir::direct_form<Taps, Data, fir::direct_sums<Taps, Taps>, fir::half_away>, int>;

using direct_32f       = plain_direct<Tav32f, Tav32f, Tav64f>;
using direct_32fc      = plain_direct<Tav32fc, Tav32fc, Tav64fc>;
using direct_64f       = plain_direct<Tav64f, Tav64f>;
using direct_64fc      = plain_direct<Tav64fc, Tav64fc>;
using direct_64f_32f   = plain_direct<Tav64f, Tav32f>;
using direct_64fc_32fc = plain_direct<Tav64fc, Tav32fc>;
using direct_32f_16s   = scaled_direct<Tav32f, Tav16s>;
using direct_32fc_16sc = scaled_direct<Tav32fc, Tav16sc>;
using direct_64f_16s   = scaled_direct<Tav64f, Tav16s>;
using direct_64fc_16sc = scaled_direct<Tav64fc, Tav16sc>;
using direct_64f_32s   = scaled_direct<Tav64f, Tav32s>;
using direct_64fc_32sc = scaled_direct<Tav64fc, Tav32sc>;

}  // namespace

TAV_BIND(FIR_Direct_32f, &direct_32f::block)
TAV_BIND(FIR_Direct_32f_I, &direct_32f::in_place)
TAV_BIND(FIROne_Direct_32f, &direct_32f::one)
TAV_BIND(FIROne_Direct_32f_I, &direct_32f::one_in_place)

TAV_BIND(FIR_Direct_32fc, &direct_32fc::block)
TAV_BIND(FIR_Direct_32fc_I, &direct_32fc::in_place)
TAV_BIND(FIROne_Direct_32fc, &direct_32fc::one)
TAV_BIND(FIROne_Direct_32fc_I, &direct_32fc::one_in_place)

TAV_BIND(FIR_Direct_64f, &direct_64f::block)
TAV_BIND(FIR_Direct_64f_I, &direct_64f::in_place)
TAV_BIND(FIROne_Direct_64f, &direct_64f::one)
TAV_BIND(FIROne_Direct_64f_I, &direct_64f::one_in_place)

TAV_BIND(FIR_Direct_64fc, &direct_64fc::block)
TAV_BIND(FIR_Direct_64fc_I, &direct_64fc::in_place)
TAV_BIND(FIROne_Direct_64fc, &direct_64fc::one)
TAV_BIND(FIROne_Direct_64fc_I, &direct_64fc::one_in_place)

TAV_BIND(FIR64f_Direct_32f, &direct_64f_32f::block)
TAV_BIND(FIR64f_Direct_32f_I, &direct_64f_32f::in_place)
TAV_BIND(FIROne64f_Direct_32f, &direct_64f_32f::one)
TAV_BIND(FIROne64f_Direct_32f_I, &direct_64f_32f::one_in_place)

TAV_BIND(FIR64fc_Direct_32fc, &direct_64fc_32fc::block)
TAV_BIND(FIR64fc_Direct_32fc_I, &direct_64fc_32fc::in_place)
TAV_BIND(FIROne64fc_Direct_32fc, &direct_64fc_32fc::one)
TAV_BIND(FIROne64fc_Direct_32fc_I, &direct_64fc_32fc::one_in_place)

TAV_BIND(FIR32f_Direct_16s_Sfs, &direct_32f_16s::block)
TAV_BIND(FIR32f_Direct_16s_ISfs, &direct_32f_16s::in_place)
TAV_BIND(FIROne32f_Direct_16s_Sfs, &direct_32f_16s::one)
TAV_BIND(FIROne32f_Direct_16s_ISfs, &direct_32f_16s::one_in_place)

TAV_BIND(FIR32fc_Direct_16sc_Sfs, &direct_32fc_16sc::block)
TAV_BIND(FIR32fc_Direct_16sc_ISfs, &direct_32fc_16sc::in_place)
TAV_BIND(FIROne32fc_Direct_16sc_Sfs, &direct_32fc_16sc::one)
TAV_BIND(FIROne32fc_Direct_16sc_ISfs, &direct_32fc_16sc::one_in_place)

TAV_BIND(FIR64f_Direct_16s_Sfs, &direct_64f_16s::block)
TAV_BIND(FIR64f_Direct_16s_ISfs, &direct_64f_16s::in_place)
TAV_BIND(FIROne64f_Direct_16s_Sfs, &direct_64f_16s::one)
TAV_BIND(FIROne64f_Direct_16s_ISfs, &direct_64f_16s::one_in_place)

TAV_BIND(FIR64fc_Direct_16sc_Sfs, &direct_64fc_16sc::block)
TAV_BIND(FIR64fc_Direct_16sc_ISfs, &direct_64fc_16sc::in_place)
TAV_BIND(FIROne64fc_Direct_16sc_Sfs, &direct_64fc_16sc::one)
TAV_BIND(FIROne64fc_Direct_16sc_ISfs, &direct_64fc_16sc::one_in_place)

TAV_BIND(FIR64f_Direct_32s_Sfs, &direct_64f_32s::block)
TAV_BIND(FIR64f_Direct_32s_ISfs, &direct_64f_32s::in_place)
TAV_BIND(FIROne64f_Direct_32s_Sfs, &direct_64f_32s::one)
TAV_BIND(FIROne64f_Direct_32s_ISfs, &direct_64f_32s::one_in_place)

TAV_BIND(FIR64fc_Direct_32sc_Sfs, &direct_64fc_32sc::block)
TAV_BIND(FIR64fc_Direct_32sc_ISfs, &direct_64fc_32sc::in_place)
TAV_BIND(FIROne64fc_Direct_32sc_Sfs, &direct_64fc_32sc::one)
TAV_BIND(FIROne64fc_Direct_32sc_ISfs, &direct_64fc_32sc::one_in_place)

}  // namespace tav::TAV_VARIANT
