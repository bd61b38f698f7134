// Companding: 16-bit samples as codes of 8 bits, by A-law and mu-law, and back.
//
// Vectors compute the samples of codes, which takes a third of the time of a table; only the scalar parts look them up.
#include "vector/companding.h"

#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

template <class Law> TAV_INLINE Tav8u code_of(int sample) {
  const int sign = sample < 0 ? -1 : 0;
  return Tav8u(Law::level(sample ^ sign) ^ Law::positive ^ (sign & 0x80));
}

template <class Law> TAV_INLINE __m128i codes_of(__m128i low, __m128i high) {
  const auto    levels   = [](__m128i v) { return Law::levels(_mm_xor_si128(v, _mm_srai_epi16(v, 15))); };
  const __m128i negative = _mm_and_si128(_mm_packs_epi16(low, high), _mm_set1_epi8(-128));
  const __m128i inverted = _mm_xor_si128(negative, _mm_set1_epi8(char(Law::positive)));
  return _mm_xor_si128(_mm_packus_epi16(levels(low), levels(high)), inverted);
}

template <class Law> struct compressed_16s : types<Tav16s, Tav16s, Tav8u> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static Tav8u   one(Tav16s sample) { return code_of<Law>(sample); }
  static __m128i many(several<__m128i, 2> samples) { return codes_of<Law>(samples.r[0], samples.r[1]); }
};

// Samples of -1 to 1, rounded as the law tells; what lies outside is limited, and a NaN is the highest sample.
template <class Law> struct compressed_32f : types<Tav32f, Tav32f, Tav8u> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static Tav8u one(Tav32f sample) {
    const __m128 v = _mm_set_ss(sample);
    return code_of<Law>(Tav16s(_mm_cvtsi128_si32(rounded(v, v))));
  }
  static __m128i many(several<__m128, 4> samples) {
    const __m128* const r = samples.r;
    return codes_of<Law>(rounded(r[0], r[1]), rounded(r[2], r[3]));
  }

 private:
  static __m128i rounded(__m128 a, __m128 b) {
    return _mm_packs_epi32(Law::rounded(scaled(a)), Law::rounded(scaled(b)));
  }

  // Limited above, where a NaN gives the second operand of the minimum; the pack limits below, for what is too low to
  // convert becomes the lowest 32-bit integer.
  static __m128 scaled(__m128 v) { return _mm_min_ps(v * _mm_set1_ps(32768), _mm_set1_ps(32767)); }
};

template <class Law> TavStatus compressed_floats(const Tav32f* src, Tav8u* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const round_to_nearest scope;
  return elementwise(compressed_32f<Law>{}, dst, size_t(len), src);
}

template <class Law> struct expanded_16s : types<Tav8u, Tav8u, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 16};

  static Tav16s              one(Tav8u code) { return Law::table.sample[code]; }
  static several<__m128i, 2> many(__m128i codes) { return Law::samples(codes); }
};

template <class Law> struct expanded_32f : types<Tav8u, Tav8u, Tav32f> {  // exact
  static constexpr kernel_shape shape{.round_bytes = 64, .step = 16};

  static Tav32f             one(Tav8u code) { return Tav32f(Law::table.sample[code]) * 0x1p-15f; }
  static several<__m128, 4> many(__m128i codes) {
    const auto s = Law::samples(codes);
    return {{low_half(s.r[0]), high_half(s.r[0]), low_half(s.r[1]), high_half(s.r[1])}};
  }

 private:
  // As the upper halves of 32-bit integers.
  static __m128 low_half(__m128i v) { return scaled(_mm_unpacklo_epi16(_mm_setzero_si128(), v)); }
  static __m128 high_half(__m128i v) { return scaled(_mm_unpackhi_epi16(_mm_setzero_si128(), v)); }
  static __m128 scaled(__m128i v) { return _mm_cvtepi32_ps(v) * _mm_set1_ps(0x1p-31f); }
};

// A look-up in eight registers: a row counts as long as the index, less 16 for each row, has not become negative.
template <const code_map& Map> struct recoded : types<Tav8u, Tav8u, Tav8u> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static Tav8u   one(Tav8u code) { return Tav8u(Map.code[code & 0x7F] | (code & 0x80)); }
  static __m128i many(__m128i codes) {
    __m128i result = _mm_and_si128(codes, _mm_set1_epi8(-128)), index = _mm_xor_si128(codes, result);
#pragma GCC unroll 8
    for (const auto& row : Map.change) {
      result = _mm_xor_si128(result, _mm_shuffle_epi8(load_bits<access::aligned>(row), index));
      index  = _mm_sub_epi8(index, _mm_set1_epi8(16));
    }
    return result;
  }
};

TAV_BIND(ALawToLin_8u16s, &one_source<expanded_16s<a_law>>)
TAV_BIND(ALawToLin_8u32f, &one_source<expanded_32f<a_law>>)
TAV_BIND(MuLawToLin_8u16s, &one_source<expanded_16s<mu_law>>)
TAV_BIND(MuLawToLin_8u32f, &one_source<expanded_32f<mu_law>>)

TAV_BIND(LinToALaw_16s8u, &one_source<compressed_16s<a_law>>)
TAV_BIND(LinToALaw_32f8u, &compressed_floats<a_law>)
TAV_BIND(LinToMuLaw_16s8u, &one_source<compressed_16s<mu_law>>)
TAV_BIND(LinToMuLaw_32f8u, &compressed_floats<mu_law>)

TAV_BIND(ALawToMuLaw_8u, &one_source<recoded<a_law_to_mu_law>>)
TAV_BIND(MuLawToALaw_8u, &one_source<recoded<mu_law_to_a_law>>)

}  // namespace tav::TAV_VARIANT
