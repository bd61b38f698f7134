// Keys of the caller's types as the engine wants them: turned, in place, into integers or doubles whose ascending order
// is the order asked for, and back.
//
// Floats of 32 bits become integers, among which NaNs and the zeros of both signs have their places. Doubles stay
// doubles, for there is no comparison of 64-bit integers.
#pragma once
#include "frame/kernel_shape.h"

namespace tav::TAV_VARIANT {

enum class sort_order { ascending, descending };

// What the engine compares: lanes with a sign, or elements of 8 and 16 bits that it widens without one.
enum class key_lanes { with_sign, widened };

template <class T> inline constexpr kernel_shape key_shape{.round_bytes = 16};

// Integers by the change of some bits.
template <class T, T Bits> struct flipped_key_bits {
  static constexpr kernel_shape shape = key_shape<T>;

  static T       one(T v) { return T(v ^ Bits); }
  static __m128i many(__m128i v) { return _mm_xor_si128(v, repeated(Bits)); }
};

// The bits of a float as an integer in the same order: those of negative ones are complemented but for the sign, which
// is its own inverse.
struct float_key {
  static constexpr kernel_shape shape = key_shape<Tav32s>;

  static Tav32s  one(Tav32s v) { return v < 0 ? v ^ 0x7FFFFFFF : v; }
  static __m128i many(__m128i v) { return _mm_xor_si128(v, _mm_srli_epi32(_mm_srai_epi32(v, 31), 1)); }
};

// Descending: the sign is changed in front of it, and behind it on the way back.
template <bool Back> struct negated_float_key {
  static constexpr kernel_shape shape = key_shape<Tav32s>;
  using sign                          = flipped_key_bits<Tav32s, INT32_MIN>;

  static Tav32s  one(Tav32s v) { return Back ? sign::one(float_key::one(v)) : float_key::one(sign::one(v)); }
  static __m128i many(__m128i v) { return Back ? sign::many(float_key::many(v)) : float_key::many(sign::many(v)); }
};

// The way to keys and back, for n elements in place.
template <class Make, class Undo = Make> struct key_change {
  template <class T> static void make(T* p, size_t n) { elementwise(Make{}, p, n, self{}); }
  template <class T> static void undo(T* p, size_t n) { elementwise(Undo{}, p, n, self{}); }
};
struct no_key_change {
  template <class T> static void make(T*, size_t) {}
  template <class T> static void undo(T*, size_t) {}
};

// The bits that change in integers: all of them if they shall descend, and the highest one if lanes and type differ in
// whether they have a sign.
template <class T, sort_order Order, key_lanes Lanes>
inline constexpr T key_bits = T((Order == sort_order::descending ? ~0u : 0u)
                                ^ ((T(-1) < T(0)) != (Lanes == key_lanes::with_sign) ? 1u << (sizeof(T) * 8 - 1) : 0u));

// What the engine sees in place of T.
template <class T, sort_order Order, key_lanes Lanes> struct keys_of {
  using word              = T;
  static constexpr T bits = key_bits<T, Order, Lanes>;
  using change            = std::conditional_t<bits == 0, no_key_change, key_change<flipped_key_bits<T, bits>>>;
};
template <key_lanes Lanes> struct keys_of<Tav32f, sort_order::ascending, Lanes> {
  using word   = Tav32s;
  using change = key_change<float_key>;
};
template <key_lanes Lanes> struct keys_of<Tav32f, sort_order::descending, Lanes> {
  using word   = Tav32s;
  using change = key_change<negated_float_key<false>, negated_float_key<true>>;
};
template <key_lanes Lanes> struct keys_of<Tav64f, sort_order::ascending, Lanes> {
  using word   = Tav64u;
  using change = no_key_change;
};
template <key_lanes Lanes> struct keys_of<Tav64f, sort_order::descending, Lanes> {
  using word   = Tav64u;
  using change = key_change<flipped_key_bits<Tav64u, Tav64u(1) << 63>>;
};

}  // namespace tav::TAV_VARIANT
