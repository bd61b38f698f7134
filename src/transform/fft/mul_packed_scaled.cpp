// tavsMulPack, tavsMulPerm of 16-bit elements with a scale factor s.
//
// Unlike everywhere else in the library, results are not rounded: for s above 0 they are shifted down as they are, to
// the next lower integer, which makes -1 of every negative result if s is large.
#include "transform/fft/mul_packed.h"
#include "vector/narrow_ops.h"

namespace tav::TAV_VARIANT {
namespace {

using complex_product = complex_product_16sc;
using row             = narrow_row<Tav16s>;

// The lane's highest value stands for 2^31, one more than it can hold, and for nothing else: complex_product says why.
struct shifted_down_16s {
  int     s;
  __m128i count, stands_for_more;

  explicit shifted_down_16s(int factor)
      : s(factor < 32 ? factor : 32),
        count(_mm_cvtsi32_si128(s < 32 ? s : 31)),
        stands_for_more(row::all(s < 32 ? INT32_MAX : INT32_MIN)) {}  // past the width it makes no difference

  int     one(int64_t r) const { return limited<complex_product>(r >> s); }
  __m128i many(pair_of_lanes r) const {
    const auto down = [this](__m128i v) { return row::sub(row::down(v, count), _mm_cmpeq_epi32(v, stands_for_more)); };
    return row::narrow(each(down, r));
  }
};

template <class Scale> struct scaled_pairs : narrow_kernel<complex_product, Scale> {
  static constexpr kernel_shape shape{.round_bytes = 16};
};

template <class Format> struct scaled_spectra {
  const Tav16s *src1, *src2;
  Tav16s*       dst;
  size_t        n;

  template <class Scale> TavStatus by(const Scale& scale) const {
    const auto reals = [&](Tav16s* to, const Tav16s* a, const Tav16s* b) {
      poke(to, Tav16s(scale.one(int64_t(peek(a)) * peek(b))));
    };
    const auto pairs = [&](auto... arguments) { return elementwise(scaled_pairs<Scale>{{{}, scale}}, arguments...); };
    return packed::multiply<Format>(src1, src2, dst, n, reals, pairs);
  }
};

template <class Format>
TavStatus shifted_product(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor) {
  constexpr int enough = 15;  // to saturate all but 0
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  const scaled_spectra<Format> all{src1, src2, dst, size_t(len)};
  if (scaleFactor > 0) return all.by(shifted_down_16s{scaleFactor});
  if (scaleFactor < 0) return all.by(narrow_up<complex_product>{scaleFactor > -enough ? -scaleFactor : enough});
  return all.by(narrow_none<complex_product>{});
}

template <class Format>
TavStatus shifted_product_in_place(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor) {
  return shifted_product<Format>(src, srcDst, srcDst, len, scaleFactor);
}

}  // namespace

TAV_BIND(MulPack_16s_Sfs, &shifted_product<packed::pack_format>)
TAV_BIND(MulPerm_16s_Sfs, &shifted_product<packed::perm_format>)
TAV_BIND(MulPack_16s_ISfs, &shifted_product_in_place<packed::pack_format>)
TAV_BIND(MulPerm_16s_ISfs, &shifted_product_in_place<packed::perm_format>)

}  // namespace tav::TAV_VARIANT
