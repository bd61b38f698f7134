// tavsMinEvery_*, tavsMaxEvery_*: the smaller or the larger of two elements.
//
// The operations treat each lane by itself, and computing an element twice does no harm: the engine over registers
// serves, without scalar loops. Where floats are neither larger nor smaller, be it for a NaN or for zeros of either
// sign, the processor takes the second operand.
#include "frame/bind.h"
#include "frame/checks.h"
#include "vector/lanewise.h"

namespace tav::TAV_VARIANT {

namespace {

template <class T> struct smaller {
  using element = T;
  __m128i operator()(__m128i a, __m128i b) const {
    if constexpr (std::is_same_v<T, Tav8u>) return _mm_min_epu8(a, b);
    if constexpr (std::is_same_v<T, Tav16u>) return _mm_sub_epi16(a, _mm_subs_epu16(a, b));
    if constexpr (std::is_same_v<T, Tav16s>) return _mm_min_epi16(a, b);
    if constexpr (std::is_same_v<T, Tav32s>) return selected(_mm_cmplt_epi32(a, b), a, b);
    if constexpr (std::is_same_v<T, Tav32f>) return as_bits(_mm_min_ps(from_bits<T>(a), from_bits<T>(b)));
    if constexpr (std::is_same_v<T, Tav64f>) return as_bits(_mm_min_pd(from_bits<T>(a), from_bits<T>(b)));
  }
};

template <class T> struct larger {
  using element = T;
  __m128i operator()(__m128i a, __m128i b) const {
    if constexpr (std::is_same_v<T, Tav8u>) return _mm_max_epu8(a, b);
    if constexpr (std::is_same_v<T, Tav16u>) return _mm_add_epi16(b, _mm_subs_epu16(a, b));
    if constexpr (std::is_same_v<T, Tav16s>) return _mm_max_epi16(a, b);
    if constexpr (std::is_same_v<T, Tav32s>) return selected(_mm_cmpgt_epi32(a, b), a, b);
    if constexpr (std::is_same_v<T, Tav32f>) return as_bits(_mm_max_ps(from_bits<T>(a), from_bits<T>(b)));
    if constexpr (std::is_same_v<T, Tav64f>) return as_bits(_mm_max_pd(from_bits<T>(a), from_bits<T>(b)));
  }
};

template <class Op> TAV_APART TavStatus every_of_long(const void* src1, const void* src2, void* dst, size_t n) {
  return in_long(Op{}, Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template <class Op> TAV_APART TavStatus every_of_medium(const void* src1, const void* src2, void* dst, size_t n) {
  if (is_long<sizeof(typename Op::element)>(dst, n)) return every_of_long<Op>(src1, src2, dst, n);
  return in_medium(Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template <class Op> TAV_APART TavStatus every_of(const void* src1, const void* src2, void* dst, size_t n) {
  if (n > short_bytes) return every_of_medium<Op>(src1, src2, dst, n);
  return in_short(Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template <template <class> class Op, class T> TavStatus every(const T* src1, const T* src2, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  return every_of<Op<T>>(src1, src2, dst, size_t(len) * sizeof(T));
}

// The forms whose length is unsigned.
template <template <class> class Op, class T>
TavStatus every_unsigned(const T* src1, const T* src2, T* dst, unsigned len) {
  if (const TavStatus bad = check_unsigned_length(len, src1, src2, dst)) return bad;
  return every_of<Op<T>>(src1, src2, dst, size_t(len) * sizeof(T));
}

template <template <class> class Op, class T> TavStatus every_in_place(const T* src, T* srcDst, int len) {
  return every<Op, T>(src, srcDst, srcDst, len);
}

}  // namespace

TAV_BIND(MinEvery_8u, (&every<smaller, Tav8u>))
TAV_BIND(MinEvery_16u, (&every<smaller, Tav16u>))
TAV_BIND(MinEvery_32f, (&every_unsigned<smaller, Tav32f>))
TAV_BIND(MinEvery_64f, (&every_unsigned<smaller, Tav64f>))
TAV_BIND(MaxEvery_8u, (&every<larger, Tav8u>))
TAV_BIND(MaxEvery_16u, (&every<larger, Tav16u>))
TAV_BIND(MaxEvery_32f, (&every_unsigned<larger, Tav32f>))
TAV_BIND(MaxEvery_64f, (&every_unsigned<larger, Tav64f>))

TAV_BIND(MinEvery_8u_I, (&every_in_place<smaller, Tav8u>))
TAV_BIND(MinEvery_16u_I, (&every_in_place<smaller, Tav16u>))
TAV_BIND(MinEvery_16s_I, (&every_in_place<smaller, Tav16s>))
TAV_BIND(MinEvery_32s_I, (&every_in_place<smaller, Tav32s>))
TAV_BIND(MinEvery_32f_I, (&every_in_place<smaller, Tav32f>))
TAV_BIND(MinEvery_64f_I, (&every_in_place<smaller, Tav64f>))
TAV_BIND(MaxEvery_8u_I, (&every_in_place<larger, Tav8u>))
TAV_BIND(MaxEvery_16u_I, (&every_in_place<larger, Tav16u>))
TAV_BIND(MaxEvery_16s_I, (&every_in_place<larger, Tav16s>))
TAV_BIND(MaxEvery_32s_I, (&every_in_place<larger, Tav32s>))
TAV_BIND(MaxEvery_32f_I, (&every_in_place<larger, Tav32f>))
TAV_BIND(MaxEvery_64f_I, (&every_in_place<larger, Tav64f>))

}  // namespace tav::TAV_VARIANT
