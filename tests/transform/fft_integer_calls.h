// The transforms of integers by type: their records and their calls, which look the same for all layouts of data, and
// what a call gives by the definition.
#pragma once
#include "oracle/fft.h"
#include "transform/fft_calls.h"

namespace test {

template <class Record, auto* GetSize, auto* Init, auto* InitAlloc, auto* Free, auto* GetBufSize>
struct integer_record {
  using record                       = Record;
  static constexpr auto get_size     = GetSize;
  static constexpr auto init         = Init;
  static constexpr auto init_alloc   = InitAlloc;
  static constexpr auto free         = Free;
  static constexpr auto get_buf_size = GetBufSize;
};

#define TAV_RECORD(type)                                                                                         \
  integer_record<FftContext_##type, &::tavsFFTGetSize_##type, &::tavsFFTInit_##type, &::tavsFFTInitAlloc_##type, \
                 &::tavsFFTFree_##type, &::tavsFFTGetBufSize_##type>
using record_16sc    = TAV_RECORD(C_16sc);
using record_16s     = TAV_RECORD(C_16s);
using record_32sc    = TAV_RECORD(C_32sc);
using record_32s     = TAV_RECORD(C_32s);
using record_r16s    = TAV_RECORD(R_16s);
using record_r32s    = TAV_RECORD(R_32s);
using record_r16s32s = TAV_RECORD(R_16s32s);
#undef TAV_RECORD

template <class R>
inline constexpr bool has_fixed_point =
    std::is_same_v<R, record_16sc> || std::is_same_v<R, record_16s> || std::is_same_v<R, record_r16s>;
template <class R>
inline constexpr bool real_record =
    std::is_same_v<R, record_r16s> || std::is_same_v<R, record_r32s> || std::is_same_v<R, record_r16s32s>;
// What the nested record computes in.
template <class R>
using inner_float = std::conditional_t<has_fixed_point<R> || std::is_same_v<R, record_r16s32s>, float, double>;

// A context of InitAlloc for one scope.
template <class R> class integer_context {
 public:
  integer_context(int order, int flag, int hint) {
    EXPECT_EQ(call<R::init_alloc>(&record_, order, flag, hint), tavStatusOk);
  }
  ~integer_context() { EXPECT_EQ(call<R::free>(record_), tavStatusOk); }
  integer_context(const integer_context&)            = delete;
  integer_context& operator=(const integer_context&) = delete;

  typename R::record* get() const { return record_; }
  int                 buf_size() const {
                    int size = -1;
                    EXPECT_EQ(call<R::get_buf_size>(record_, &size), tavStatusOk);
                    return size;
  }

 private:
  typename R::record* record_ = nullptr;
};

// How N points, or their spectrum, stand in an array of integers.
enum class order_of { pairs, parts, samples, perm, pack, ccs };

inline size_t elements(order_of o, size_t n) {
  if (o == order_of::pairs || o == order_of::parts) return 2 * n;
  return o != order_of::ccs ? n : n == 1 ? 2 : n + 2;
}
inline size_t elements_read(order_of o, size_t n) { return n == 1 && o == order_of::ccs ? 1 : elements(o, n); }

// Where a spectrum in Perm order finds its i-th element.
inline size_t slot(order_of o, size_t i, size_t n) {
  if (i == 0 || o == order_of::samples || o == order_of::perm) return i;
  if (i == 1) return o == order_of::pack ? n - 1 : n;
  return o == order_of::pack ? i - 1 : i;
}

using wide_points = std::vector<oracle::wide_complex>;
using wide_values = std::vector<long double>;

template <class T> wide_points points_of(order_of o, const std::vector<T>& x, size_t n) {
  wide_points p(n);
  if (o == order_of::pairs || o == order_of::parts) {
    for (size_t i = 0; i < n; ++i)
      p[i] = o == order_of::pairs ? oracle::wide_complex(x[2 * i], x[2 * i + 1]) : oracle::wide_complex(x[i], x[n + i]);
  } else if (o == order_of::samples) {
    for (size_t i = 0; i < n; ++i) p[i] = x[i];
  } else {
    p[0] = x[0];
    if (n > 1) p[n / 2] = x[slot(o, 1, n)];
    for (size_t k = 1; k < n / 2; ++k) {
      p[k]     = {(long double)x[slot(o, 2 * k, n)], (long double)x[slot(o, 2 * k + 1, n)]};
      p[n - k] = std::conj(p[k]);
    }
  }
  return p;
}

inline wide_values values_of(order_of o, const wide_points& p) {
  const size_t n = p.size();
  wide_values  x(elements(o, n));
  for (size_t i = 0; i < n; ++i) {
    if (o == order_of::pairs) x[2 * i] = p[i].real(), x[2 * i + 1] = p[i].imag();
    if (o == order_of::parts) x[i] = p[i].real(), x[n + i] = p[i].imag();
    if (o == order_of::samples) x[i] = p[i].real();
    if (o >= order_of::perm)
      x[slot(o, i, n)] = i == 1 ? p[n / 2].real() : i % 2 == 0 ? p[i / 2].real() : p[i / 2].imag();
  }
  return x;
}

// One worker out of place, and its form in place where source and destination have one type.
template <class Record, class Src, class Dst, order_of From, order_of To, bool Inverse, auto* Out, auto* Self>
struct integer_form {
  using record                   = Record;
  using src                      = Src;
  using dst                      = Dst;
  static constexpr order_of from = From, to = To;
  static constexpr bool     inverse = Inverse, in_place = std::is_same_v<Src, Dst>;
  static constexpr auto     exported = Out;

  static TavStatus run(const Src* x, Dst* y, size_t n, const typename Record::record* ctx, int s, Tav8u* buf) {
    if constexpr (From == order_of::pairs) {
      using C = std::conditional_t<sizeof(Src) == 2, Tav16sc, Tav32sc>;
      if (x == y) return call<Self>(reinterpret_cast<C*>(y), ctx, s, buf);
      return call<Out>(reinterpret_cast<const C*>(x), reinterpret_cast<C*>(y), ctx, s, buf);
    } else if constexpr (From == order_of::parts) {
      return x == y ? call<Self>(y, y + n, ctx, s, buf) : call<Out>(x, x + n, y, y + n, ctx, s, buf);
    } else {
      if constexpr (in_place)
        if (x == y) return call<Self>(y, ctx, s, buf);
      return call<Out>(x, y, ctx, s, buf);
    }
  }

  static wide_values by_definition(const std::vector<Src>& x, int order) {
    wide_points p = points_of(From, x, size_t(1) << order);
    oracle::transform(p, Inverse ? 1 : -1);
    return values_of(To, p);
  }
};

#define TAV_COMPLEX(rec, type, kind, inverse, name) \
  integer_form<rec, type, type, kind, kind, inverse, &::tavsFFT##name##_Sfs, &::tavsFFT##name##_ISfs>
using fwd_16sc = TAV_COMPLEX(record_16sc, Tav16s, order_of::pairs, false, Fwd_CToC_16sc);
using inv_16sc = TAV_COMPLEX(record_16sc, Tav16s, order_of::pairs, true, Inv_CToC_16sc);
using fwd_16s  = TAV_COMPLEX(record_16s, Tav16s, order_of::parts, false, Fwd_CToC_16s);
using inv_16s  = TAV_COMPLEX(record_16s, Tav16s, order_of::parts, true, Inv_CToC_16s);
using fwd_32sc = TAV_COMPLEX(record_32sc, Tav32s, order_of::pairs, false, Fwd_CToC_32sc);
using inv_32sc = TAV_COMPLEX(record_32sc, Tav32s, order_of::pairs, true, Inv_CToC_32sc);
using fwd_32s  = TAV_COMPLEX(record_32s, Tav32s, order_of::parts, false, Fwd_CToC_32s);
using inv_32s  = TAV_COMPLEX(record_32s, Tav32s, order_of::parts, true, Inv_CToC_32s);
#undef TAV_COMPLEX

#define TAV_REAL_FORWARD(width, kind, name)                                                       \
  integer_form<record_r##width, Tav##width, Tav##width, order_of::samples, order_of::kind, false, \
               &::tavsFFTFwd_RTo##name##_##width##_Sfs, &::tavsFFTFwd_RTo##name##_##width##_ISfs>
#define TAV_REAL_INVERSE(width, kind, name)                                                      \
  integer_form<record_r##width, Tav##width, Tav##width, order_of::kind, order_of::samples, true, \
               &::tavsFFTInv_##name##ToR_##width##_Sfs, &::tavsFFTInv_##name##ToR_##width##_ISfs>
using fwd_perm_16s = TAV_REAL_FORWARD(16s, perm, Perm);
using fwd_pack_16s = TAV_REAL_FORWARD(16s, pack, Pack);
using fwd_ccs_16s  = TAV_REAL_FORWARD(16s, ccs, CCS);
using fwd_perm_32s = TAV_REAL_FORWARD(32s, perm, Perm);
using fwd_pack_32s = TAV_REAL_FORWARD(32s, pack, Pack);
using fwd_ccs_32s  = TAV_REAL_FORWARD(32s, ccs, CCS);
using inv_perm_16s = TAV_REAL_INVERSE(16s, perm, Perm);
using inv_pack_16s = TAV_REAL_INVERSE(16s, pack, Pack);
using inv_ccs_16s  = TAV_REAL_INVERSE(16s, ccs, CCS);
using inv_perm_32s = TAV_REAL_INVERSE(32s, perm, Perm);
using inv_pack_32s = TAV_REAL_INVERSE(32s, pack, Pack);
using inv_ccs_32s  = TAV_REAL_INVERSE(32s, ccs, CCS);
#undef TAV_REAL_FORWARD
#undef TAV_REAL_INVERSE

using fwd_16s32s = integer_form<record_r16s32s, Tav16s, Tav32s, order_of::samples, order_of::ccs, false,
                                &::tavsFFTFwd_RToCCS_16s32s_Sfs, &::tavsFFTFwd_RToCCS_16s32s_Sfs>;
using inv_32s16s = integer_form<record_r16s32s, Tav32s, Tav16s, order_of::ccs, order_of::samples, true,
                                &::tavsFFTInv_CCSToR_32s16s_Sfs, &::tavsFFTInv_CCSToR_32s16s_Sfs>;

// The factor of a flag.
inline long double factor_of(int flag, bool inverse, int order) {
  const long double n = ldexpl(1, order);
  return flag == fftScaleBoth ? 1 / sqrtl(n) : flag == (inverse ? fftScaleInverse : fftScaleForward) ? 1 / n : 1;
}

// One call in a layout; guards of the arrays and of the work area are looked at.
struct integer_homes {
  arena src, dst, work;
  explicit integer_homes(size_t n) : src(n * 8 + 128), dst(n * 8 + 128), work(n * 64 + 4096) {}
};

template <class F>
std::vector<typename F::dst> transformed(const std::vector<typename F::src>& x, size_t n, int s,
                                         const integer_context<typename F::record>& context, const fft_layout& l,
                                         integer_homes& h) {
  using S           = typename F::src;
  using D           = typename F::dst;
  const size_t made = elements(F::to, n), room = l.in_place ? std::max(made, x.size()) : made;
  array<S>     src(h.src, x.size(), l.src);
  array<D>     dst(h.dst, room, l.dst);
  src.assign(x);
  memset(static_cast<void*>(dst.data()), 0x77, room * sizeof(D));
  const int    size = context.buf_size();
  array<Tav8u> work(h.work, size_t(size), {placement::inside, unsigned(l.buf_offset < 0 ? 0 : l.buf_offset)});
  Tav8u*       buf  = l.buf_offset < 0 ? nullptr : work.data();
  const S*     read = src.data();
  if constexpr (F::in_place)
    if (l.in_place) {
      memcpy(static_cast<void*>(dst.data()), x.data(), x.size() * sizeof(S));
      read = dst.data();
    }
  EXPECT_EQ(F::run(read, dst.data(), n, context.get(), s, buf), tavStatusOk);
  EXPECT_EQ(src.values(), x) << "the source was written";
  EXPECT_TRUE(src.guards_intact() && dst.guards_intact() && work.guards_intact());
  std::vector<D> y = dst.values();
  y.resize(made);
  return y;
}

// The first is the plain one.
inline std::vector<fft_layout> integer_layouts() {
  using p = placement;
  return {{{p::inside, 0}, {p::inside, 0}, false, 0},         {{p::inside, 0}, {p::inside, 0}, true, 0},
          {{p::inside, 2}, {p::inside, 4}, false, 1},         {{p::inside, 12}, {p::inside, 6}, false, -1},
          {{p::begins_at_page}, {p::ends_at_page}, false, 3}, {{p::ends_at_page}, {p::begins_at_page}, false, 63},
          {{p::inside, 3}, {p::inside, 5}, false, 2},         {{p::inside, 0}, {p::ends_at_page}, true, -1},
          {{p::inside, 1}, {p::inside, 7}, true, 15}};
}

}  // namespace test
