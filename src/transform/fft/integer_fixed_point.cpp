// Fixed point: samples are shifted up as far as the sums of a transform leave room for, transformed in 32 bits, and
// shifted down again, with the factor of the record and of the call in the same shift.
#include "transform/fft/integer_fixed_point.h"

#include "transform/fft/integer_lanes.h"

namespace tav::TAV_VARIANT {
namespace {

using namespace fixed_point;

constexpr int guard_bits(int order) { return 15 - order; }

// `parts` is a power of two; below 4 the rest of the register is zeros.
TAV_INLINE void widen(const Tav16s* src, int parts, const widening& wide, __m128i* z) {
  if (parts == 2) {
    z[0] = wide.lower(load_low<4>(src));
  } else if (parts == 4) {
    z[0] = wide.lower(load_low<8>(src));
  } else {
    for (int k = 0; k < parts; k += 8, z += 2) {
      const __m128i v = load_bits<access::unaligned>(src + k);
      z[0] = wide.lower(v), z[1] = wide.upper(v);
    }
  }
}

TAV_INLINE void narrow(const __m128i* z, int parts, const narrowing& fine, Tav16s* dst) {
  if (parts == 2) {
    poke(reinterpret_cast<Tav32s*>(dst), _mm_cvtsi128_si32(fine.words(z[0], z[0])));
  } else if (parts == 4) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), fine.words(z[0], z[0]));
  } else {
    for (int k = 0; k < parts; k += 8, z += 2) store_bits<access::unaligned>(dst + k, fine.words(z[0], z[1]));
  }
}

TAV_INLINE void narrow_root_half(__m128i* z, int parts) {
  for (int k = 0; k < parts; k += 4) z[k / 4] = times_root_half(z[k / 4]);
}

// Complex transforms, two points in a register, natural order on both sides. The inverse takes the points from the
// second on backwards.

TAV_INLINE void two_points(__m128i* z) {
  const __m128i other = _mm_shuffle_epi32(z[0], _MM_SHUFFLE(1, 0, 3, 2));
  z[0]                = _mm_add_epi32(other, with_signs(z[0], 1, 1, -1, -1));
}

TAV_INLINE void four_points(__m128i* z, bool inverse) {
  const __m128i a = inverse ? halves(z[0], z[1]) : z[0], b = inverse ? halves(z[1], z[0]) : z[1];
  const __m128i sums = _mm_add_epi32(a, b), differences = _mm_sub_epi32(a, b);
  const __m128i even = _mm_unpacklo_epi64(sums, differences), odd = _mm_unpackhi_epi64(sums, differences);
  const __m128i rotated = halves(odd, turned(odd));
  z[0]                  = _mm_add_epi32(even, rotated);
  z[1]                  = _mm_sub_epi32(even, rotated);
}

// Four points of even and four of odd index side by side, then these times their twiddles.
TAV_INLINE void eight_points(__m128i* z, bool inverse) {
  const __m128i a = inverse ? halves(z[0], z[3]) : z[0], b = inverse ? halves(z[3], z[2]) : z[1],
                c = inverse ? halves(z[2], z[1]) : z[2], d = inverse ? halves(z[1], z[0]) : z[3];
  const __m128i ac = _mm_add_epi32(a, c), a_c = _mm_sub_epi32(a, c);
  const __m128i bd = _mm_add_epi32(b, d), b_d = turned(_mm_sub_epi32(b, d));
  const __m128i x0 = _mm_add_epi32(ac, bd), x1 = _mm_add_epi32(a_c, b_d), x2 = _mm_sub_epi32(ac, bd),
                x3 = _mm_sub_epi32(a_c, b_d);

  const __m128i odd       = _mm_unpackhi_epi64(x1, x3);  // an eighth of a turn: (re + im, im - re) / sqrt(2)
  const __m128i diagonals = times_root_half(_mm_add_epi32(odd, with_signs(parts_exchanged(odd), 1, -1, 1, -1)));
  const __m128i odd01     = upper_then_lower(x0, diagonals);
  const __m128i odd23     = turned(_mm_unpackhi_epi64(x2, diagonals));
  const __m128i even01 = _mm_unpacklo_epi64(x0, x1), even23 = _mm_unpacklo_epi64(x2, x3);
  z[0] = _mm_add_epi32(even01, odd01);
  z[1] = _mm_add_epi32(even23, odd23);
  z[2] = _mm_sub_epi32(even01, odd01);
  z[3] = _mm_sub_epi32(even23, odd23);
}

TAV_INLINE void complex_points(__m128i* z, int order, bool inverse) {
  if (order == 1) two_points(z);
  if (order == 2) four_points(z, inverse);
  if (order == 3) eight_points(z, inverse);
}

// Real transforms: from the spectrum Z of n/2 complex points to that of n samples, in permuted order, or back. A point
// and its mirror are turned into E + T and conj(E - T), with E and O the sum and difference of the one and the
// conjugate of the other, forward halved, and T the product of O and a twiddle.

// The first point: its real part plus and minus the imaginary one. The other half of the register is given.
TAV_INLINE __m128i with_ends(__m128i first, __m128i rest) {
  return halves(_mm_add_epi32(parts_exchanged(first), with_signs(first, 1, -1, 0, 0)), rest);
}

TAV_INLINE __m128i conjugate(__m128i v) { return with_signs(v, 1, -1, 1, -1); }

// Points 1 and 3 of order 3.
TAV_INLINE __m128i recombined(__m128i points, bool inverse) {
  const __m128i lower = _mm_unpacklo_epi64(points, points), upper = _mm_unpackhi_epi64(points, points);
  __m128i       both = _mm_add_epi32(lower, with_signs(upper, 1, -1, -1, 1));
  if (!inverse) both = _mm_srai_epi32(both, 1);
  const __m128i e = _mm_unpacklo_epi64(both, both), o = _mm_unpackhi_epi64(both, both);
  const __m128i mirrored_e = with_signs(e, 1, 1, 1, -1);
  if (!inverse) {
    const __m128i t = times_root_half(_mm_add_epi32(parts_exchanged(o), with_signs(o, -1, 1, -1, 1)));
    return _mm_add_epi32(mirrored_e, with_signs(t, 1, -1, -1, -1));
  }
  const __m128i t = times_root_half(_mm_add_epi32(o, with_signs(parts_exchanged(o), -1, 1, -1, 1)));
  return _mm_add_epi32(mirrored_e, with_signs(parts_exchanged(t), -1, 1, 1, 1));
}

TAV_INLINE void recombine(__m128i* z, int order, bool inverse) {
  if (order == 1) {
    z[0] = with_ends(z[0], z[0]);
  } else if (order == 2) {
    const __m128i bin = conjugate(z[0]);
    z[0]              = with_ends(z[0], inverse ? _mm_add_epi32(bin, bin) : bin);
  } else {
    const __m128i bins   = recombined(_mm_unpackhi_epi64(z[0], z[1]), inverse);
    const __m128i middle = conjugate(z[1]);
    z[0]                 = with_ends(z[0], _mm_unpacklo_epi64(bins, bins));
    z[1]                 = halves(inverse ? _mm_add_epi32(middle, middle) : middle, bins);
  }
}

TAV_INLINE Tav16s narrowed(Tav16s v, const narrowing& fine) {
  const __m128i word = _mm_cvtsi32_si128(v);
  return Tav16s(_mm_cvtsi128_si32(fine.words(word, word)));
}

}  // namespace

void run_fixed_pairs(const fixed_transform& t, const Tav16s* src, Tav16s* dst) {
  if (t.order == 0) {
    const narrowing fine(0, t.scale_factor);
    for (int part = 0; part < 2; ++part) poke(dst + part, narrowed(peek(src + part), fine));
    return;
  }
  const int      up = guard_bits(t.order), parts = 2 << t.order;
  __m128i* const z = reinterpret_cast<__m128i*>(t.area);
  widen(src, parts, widening(up), z);
  complex_points(z, t.order, t.inverse);
  if (t.root_half) narrow_root_half(z, parts);
  narrow(z, parts, narrowing(t.shift + up, t.scale_factor), dst);
}

// Forward there is room for a bit more, and a use: the recombination halves.
void run_fixed_real(const fixed_transform& t, const Tav16s* src, Tav16s* dst) {
  if (t.order == 0) return poke(dst, narrowed(peek(src), narrowing(0, t.scale_factor)));
  const int      up = guard_bits(t.order) + !t.inverse, parts = 1 << t.order;
  __m128i* const z = reinterpret_cast<__m128i*>(t.area);
  widen(src, parts, widening(up), z);
  if (t.inverse) recombine(z, t.order, true);
  complex_points(z, t.order - 1, t.inverse);
  if (!t.inverse) recombine(z, t.order, false);
  if (t.root_half) narrow_root_half(z, parts);
  narrow(z, parts, narrowing(t.shift + up, t.scale_factor), dst);
}

}  // namespace tav::TAV_VARIANT
