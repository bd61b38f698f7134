// Transforms of integers beside loops that convert around our transform of floats. Up to 8 points of 16 bits ours works
// in fixed point.
#include <cstdlib>
#include <memory>

#include "harness.h"
#include "plain_convert.h"

namespace bench {
namespace {

template <class Part, class Float, class Context, class FloatContext, auto* Make, auto* Free, auto* Size,
          auto* FloatMake, auto* FloatFree, auto* FloatSize, int PartsAPoint>
struct integer_type {
  using part                       = Part;
  using real                       = Float;
  using context                    = Context;
  using float_context              = FloatContext;
  static constexpr auto make       = Make;
  static constexpr auto free       = Free;
  static constexpr auto size       = Size;
  static constexpr auto float_make = FloatMake;
  static constexpr auto float_free = FloatFree;
  static constexpr auto float_size = FloatSize;
  static constexpr int  parts      = PartsAPoint;
};

#define TYPE(integer, floats, part, real, parts)                                                   \
  integer_type<part, real, FftContext_##integer, FftContext_##floats, &tavsFFTInitAlloc_##integer, \
               &tavsFFTFree_##integer, &tavsFFTGetBufSize_##integer, &tavsFFTInitAlloc_##floats,   \
               &tavsFFTFree_##floats, &tavsFFTGetBufSize_##floats, parts>

struct complex_16 : TYPE(C_16sc, C_32fc, Tav16s, Tav32f, 2) {
  static void run(const part* in, part* out, const context* c, int s, Tav8u* work) {
    tavsFFTFwd_CToC_16sc_Sfs(reinterpret_cast<const Tav16sc*>(in), reinterpret_cast<Tav16sc*>(out), c, s, work);
  }
  static void run_floats(real* x, const float_context* c, Tav8u* work) {
    tavsFFTFwd_CToC_32fc_I(reinterpret_cast<Tav32fc*>(x), c, work);
  }
};
struct complex_32 : TYPE(C_32sc, C_64fc, Tav32s, Tav64f, 2) {
  static void run(const part* in, part* out, const context* c, int s, Tav8u* work) {
    tavsFFTFwd_CToC_32sc_Sfs(reinterpret_cast<const Tav32sc*>(in), reinterpret_cast<Tav32sc*>(out), c, s, work);
  }
  static void run_floats(real* x, const float_context* c, Tav8u* work) {
    tavsFFTFwd_CToC_64fc_I(reinterpret_cast<Tav64fc*>(x), c, work);
  }
};
struct real_16 : TYPE(R_16s, R_32f, Tav16s, Tav32f, 1) {
  static void run(const part* in, part* out, const context* c, int s, Tav8u* work) {
    tavsFFTFwd_RToPerm_16s_Sfs(in, out, c, s, work);
  }
  static void run_floats(real* x, const float_context* c, Tav8u* work) { tavsFFTFwd_RToPerm_32f_I(x, c, work); }
};
struct real_32 : TYPE(R_32s, R_64f, Tav32s, Tav64f, 1) {
  static void run(const part* in, part* out, const context* c, int s, Tav8u* work) {
    tavsFFTFwd_RToPerm_32s_Sfs(in, out, c, s, work);
  }
  static void run_floats(real* x, const float_context* c, Tav8u* work) { tavsFFTFwd_RToPerm_64f_I(x, c, work); }
};
#undef TYPE

// One length, from the first array of the pool to the second; the loops' floats are in the third.
template <class P> class integers {
 public:
  using T = typename P::part;

  explicit integers(int order) : order_(order), values_(P::parts << order) {
    int size = 0, float_size = 0;
    P::make(&context_, order, fftScaleNone, 0);
    P::float_make(&float_context_, order, fftScaleNone, 0);
    P::size(context_, &size);
    P::float_size(float_context_, &float_size);
    work_       = std::make_unique<Tav8u[]>(size_t(size) + 1);
    float_work_ = std::make_unique<Tav8u[]>(size_t(float_size) + 1);
    for (int i = 0; i < values_; ++i) in_[i] = T((i * 7919 % 1024 - 512) * 61);
  }
  ~integers() { P::free(context_), P::float_free(float_context_); }
  integers(const integers&)            = delete;
  integers& operator=(const integers&) = delete;

  void run() { P::run(in_, out_, context_, order_, work_.get()); }
  void run_loops() {
    plain::convert(in_, floats_, values_);
    P::run_floats(floats_, float_context_, float_work_.get());
    plain::to_nearest(floats_, typename P::real(1) / typename P::real(1 << order_), out_, values_);
  }

  void compare(const row& r) {
    run();
    const std::vector<T> mine(out_, out_ + values_);
    run_loops();
    bool same = true;
    for (int i = 0; i < values_; ++i) same &= std::abs(double(mine[size_t(i)]) - out_[i]) <= 1;
    require_same(r, loop, same);
  }

 private:
  int                        order_, values_;
  T *                        in_ = static_cast<T*>(pool(0)), *out_ = static_cast<T*>(pool(1));
  typename P::real*          floats_        = static_cast<typename P::real*>(pool(2));
  typename P::context*       context_       = nullptr;
  typename P::float_context* float_context_ = nullptr;
  std::unique_ptr<Tav8u[]>   work_, float_work_;
};

template <class P> void transforms(const char* name, const std::vector<int>& orders) {
  for (int order : orders) {
    const std::string place = "2^" + std::to_string(order);
    const row         r{.name = name, .bytes = 2.0 * P::parts * sizeof(typename P::part), .curve = true};
    if (!wanted(r)) return;
    integers<P> x(order);
    x.compare(r);
    const auto entry_of = [&x](const char* contender, void (integers<P>::*run)()) {
      return entry{contender, [&x, run](benchmark::State& state) {
                     for (auto _ : state) {
                       (x.*run)();
                       benchmark::ClobberMemory();
                     }
                   }};
    };
    measure_point(r, {P::parts * sizeof(typename P::part) << order, place.c_str()}, 1 << order,
                  {entry_of(ours, &integers<P>::run), entry_of(loop, &integers<P>::run_loops)});
  }
}

const std::vector<int> orders{1, 2, 3, 4, 6, 8, 10, 12, 14, 16};

}  // namespace

BENCH_FAMILY(fft_integer) {
  transforms<complex_16>("FFTFwd_CToC_16sc_Sfs", orders);
  transforms<complex_32>("FFTFwd_CToC_32sc_Sfs", orders);
  transforms<real_16>("FFTFwd_RToPerm_16s_Sfs", orders);
  transforms<real_32>("FFTFwd_RToPerm_32s_Sfs", orders);
}

}  // namespace bench
