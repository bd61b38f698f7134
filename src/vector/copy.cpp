// tavsCopy_*, tavsMove_*. The two copies of 16-byte pairs are in copy_tuned.cpp, those of bits in bits.cpp.
#include "frame/bind.h"
#include "vector/move_forms.h"

namespace tav::TAV_VARIANT {

template <class T> constexpr auto copied = &transferred<T, shared::copy_bytes>;
template <class T> constexpr auto moved  = &transferred<T, shared::move_bytes>;

TAV_BIND(Copy_8u, copied<Tav8u>)
TAV_BIND(Copy_16s, copied<Tav16s>)
TAV_BIND(Copy_16sc, copied<Tav16sc>)
TAV_BIND(Copy_32s, copied<Tav32s>)
TAV_BIND(Copy_32sc, copied<Tav32sc>)
TAV_BIND(Copy_32f, copied<Tav32f>)
TAV_BIND(Copy_32fc, copied<Tav32fc>)
TAV_BIND(Copy_64s, copied<Tav64s>)
TAV_BIND(Copy_64f, copied<Tav64f>)

TAV_BIND(Move_8u, moved<Tav8u>)
TAV_BIND(Move_16s, moved<Tav16s>)
TAV_BIND(Move_16sc, moved<Tav16sc>)
TAV_BIND(Move_32s, moved<Tav32s>)
TAV_BIND(Move_32sc, moved<Tav32sc>)
TAV_BIND(Move_32f, moved<Tav32f>)
TAV_BIND(Move_32fc, moved<Tav32fc>)
TAV_BIND(Move_64s, moved<Tav64s>)
TAV_BIND(Move_64sc, moved<Tav64sc>)
TAV_BIND(Move_64f, moved<Tav64f>)
TAV_BIND(Move_64fc, moved<Tav64fc>)

}  // namespace tav::TAV_VARIANT
