// tavsSet_*, tavsZero_*.
#include "frame/bind.h"
#include "vector/move_forms.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Set_8u, &filled<Tav8u>)
TAV_BIND(Set_16s, &filled<Tav16s>)
TAV_BIND(Set_16sc, &filled<Tav16sc>)
TAV_BIND(Set_32s, &filled<Tav32s>)
TAV_BIND(Set_32sc, &filled<Tav32sc>)
TAV_BIND(Set_32f, &filled<Tav32f>)
TAV_BIND(Set_32fc, &filled<Tav32fc>)
TAV_BIND(Set_64s, &filled<Tav64s>)
TAV_BIND(Set_64sc, &filled<Tav64sc>)
TAV_BIND(Set_64f, &filled<Tav64f>)
TAV_BIND(Set_64fc, &filled<Tav64fc>)

TAV_BIND(Zero_8u, &zeroed<Tav8u>)
TAV_BIND(Zero_16s, &zeroed<Tav16s>)
TAV_BIND(Zero_16sc, &zeroed<Tav16sc>)
TAV_BIND(Zero_32s, &zeroed<Tav32s>)
TAV_BIND(Zero_32sc, &zeroed<Tav32sc>)
TAV_BIND(Zero_32f, &zeroed<Tav32f>)
TAV_BIND(Zero_32fc, &zeroed<Tav32fc>)
TAV_BIND(Zero_64s, &zeroed<Tav64s>)
TAV_BIND(Zero_64sc, &zeroed<Tav64sc>)
TAV_BIND(Zero_64f, &zeroed<Tav64f>)
TAV_BIND(Zero_64fc, &zeroed<Tav64fc>)

}  // namespace tav::TAV_VARIANT
