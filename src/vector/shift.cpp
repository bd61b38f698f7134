// tavsLShiftC_*, tavsRShiftC_*: each element shifted by the same count.
//
// The processor's own rule for counts at or above the width is the one wanted: a logical shift clears, an arithmetic
// one leaves the sign everywhere. Bytes, which have no shift, go as 16-bit lanes; a mask drops what came from the
// neighbour.
#include "frame/bind.h"
#include "frame/checks.h"
#include "vector/lanewise.h"

namespace tav::TAV_VARIANT {

struct by_count {
  __m128i count;
  explicit by_count(int n) : count(_mm_cvtsi32_si128(n)) {}
};

struct left_8 : by_count {
  using element = Tav8u;
  __m128i mask;
  explicit left_8(int n) : by_count(n), mask(_mm_set1_epi8(char(0xFF << n))) {}
  __m128i operator()(__m128i a) const { return _mm_and_si128(_mm_sll_epi16(a, count), mask); }
};

struct left_16 : by_count {
  using element = Tav16u;
  using by_count::by_count;
  __m128i operator()(__m128i a) const { return _mm_sll_epi16(a, count); }
};

struct left_32 : by_count {
  using element = Tav32u;
  using by_count::by_count;
  __m128i operator()(__m128i a) const { return _mm_sll_epi32(a, count); }
};

struct right_8 : by_count {
  using element = Tav8u;
  __m128i mask;
  explicit right_8(int n) : by_count(n), mask(_mm_set1_epi8(char(0xFF >> n))) {}
  __m128i operator()(__m128i a) const { return _mm_and_si128(_mm_srl_epi16(a, count), mask); }
};

struct right_16 : by_count {
  using element = Tav16u;
  using by_count::by_count;
  __m128i operator()(__m128i a) const { return _mm_srl_epi16(a, count); }
};

struct signed_right_16 : by_count {
  using element = Tav16s;
  using by_count::by_count;
  __m128i operator()(__m128i a) const { return _mm_sra_epi16(a, count); }
};

struct signed_right_32 : by_count {
  using element = Tav32s;
  using by_count::by_count;
  __m128i operator()(__m128i a) const { return _mm_sra_epi32(a, count); }
};

template <class Op> TAV_APART TavStatus shift_long(const void* src, void* dst, size_t n, int count) {
  const Op op(count);
  return in_long(op, op, bytes(dst), n, bytes(src));
}

template <class Op> TAV_APART TavStatus shift_medium(const void* src, void* dst, size_t n, int count) {
  if (is_long<sizeof(typename Op::element)>(dst, n)) return shift_long<Op>(src, dst, n, count);
  return in_medium(Op(count), bytes(dst), n, bytes(src));
}

template <class Op> TAV_APART TavStatus shift(const void* src, void* dst, size_t n, int count) {
  if (n > short_bytes) return shift_medium<Op>(src, dst, n, count);
  return in_short(Op(count), bytes(dst), n, bytes(src));
}

// T may differ from the operation's element in its sign: a left shift has none.
template <class Op, class T> TavStatus shifted(const T* src, int val, T* dst, int len) {
  constexpr int  width       = 8 * int(sizeof(T));
  constexpr bool leaves_sign = std::is_signed_v<typename Op::element>;
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (val < 0) return tavStatusBadShift;
  const size_t n = size_t(len) * sizeof(T);
  if (val == 0) return shared::copy_unless_in_place(src, dst, n);
  if (val >= width && !leaves_sign) return shared::zero_bytes(dst, n);
  return shift<Op>(src, dst, n, val);
}

template <class Op, class T> TavStatus shifted_in_place(int val, T* srcDst, int len) {
  return shifted<Op>(srcDst, val, srcDst, len);
}

TAV_BIND(LShiftC_8u, &shifted<left_8, Tav8u>)
TAV_BIND(LShiftC_16u, &shifted<left_16, Tav16u>)
TAV_BIND(LShiftC_16s, &shifted<left_16, Tav16s>)
TAV_BIND(LShiftC_32s, &shifted<left_32, Tav32s>)
TAV_BIND(RShiftC_8u, &shifted<right_8, Tav8u>)
TAV_BIND(RShiftC_16u, &shifted<right_16, Tav16u>)
TAV_BIND(RShiftC_16s, &shifted<signed_right_16, Tav16s>)
TAV_BIND(RShiftC_32s, &shifted<signed_right_32, Tav32s>)

TAV_BIND(LShiftC_8u_I, &shifted_in_place<left_8, Tav8u>)
TAV_BIND(LShiftC_16u_I, &shifted_in_place<left_16, Tav16u>)
TAV_BIND(LShiftC_16s_I, &shifted_in_place<left_16, Tav16s>)
TAV_BIND(LShiftC_32s_I, &shifted_in_place<left_32, Tav32s>)
TAV_BIND(RShiftC_8u_I, &shifted_in_place<right_8, Tav8u>)
TAV_BIND(RShiftC_16u_I, &shifted_in_place<right_16, Tav16u>)
TAV_BIND(RShiftC_16s_I, &shifted_in_place<signed_right_16, Tav16s>)
TAV_BIND(RShiftC_32s_I, &shifted_in_place<signed_right_32, Tav32s>)

}  // namespace tav::TAV_VARIANT
