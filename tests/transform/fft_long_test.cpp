// Long transforms of floats: all properties up to four million points, and the longest that a machine has memory for.
#include <gtest/gtest.h>

#include <sys/mman.h>

#include "harness/long_run.h"
#include "transform/fft_properties.h"

using namespace test;

namespace {

template <class F> class FftTakesLong : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f>;
TYPED_TEST_SUITE(FftTakesLong, families);

TYPED_TEST(FftTakesLong, From17To22) {
  TAV_LONG_TEST();
  for (int order = 17; order <= 22 && !this->HasFailure(); ++order) check_properties<TypeParam>(order);
}

// Fresh pages, all zero, of which only those written to take memory.
template <class T> class pages {
 public:
  explicit pages(size_t n) : bytes_(n * sizeof(T)) {
    void* const p = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p != MAP_FAILED) data_ = static_cast<T*>(p);
  }
  ~pages() {
    if (data_) munmap(data_, bytes_);
  }
  pages(const pages&)            = delete;
  pages& operator=(const pages&) = delete;

  T* data() const { return data_; }
  T& operator[](size_t i) const { return data_[i]; }

 private:
  size_t bytes_;
  T*     data_ = nullptr;
};

// Noise that can be had again: a value between -1 and 1 for each index.
template <class T> T noise_at(uint64_t i) {
  uint64_t x = (i + 1) * 0x9E3779B97F4A7C15u;
  x          = (x ^ x >> 32) * 0xD6E8FEB86659FD93u;
  return T(int32_t(x >> 32)) / T(1u << 31);
}

template <class F> class longest {
 public:
  using T    = typename F::part;
  using wide = oracle::wide_complex;

  longest(int order, const typename F::record* ctx)
      : order_(order), n_(size_t(1) << order), ctx_(ctx), limit_(oracle::error_limit<T>(order)) {}

  // Src, mostly zeros, and dst.
  bool impulse() {
    const pages<T> src(2 * n_), dst(2 * n_);
    if (!src.data() || !dst.data()) return false;
    const size_t                 at = n_ / 8 * 5 + 77;
    const oracle::roots_of_unity root(order_);
    src[index(at, 0)] = 1;
    EXPECT_EQ((run_fft<F, false>(src.data(), dst.data(), n_, ctx_, nullptr)), tavStatusOk);
    long double error = 0;
    for (size_t k = 0; k < n_; ++k) error += std::norm(point(dst, k) - std::conj(root(uint64_t(k) * at)));
    EXPECT_LE(sqrtl(error), limit_ * sqrtl(n_)) << "impulse";
    return true;
  }

  bool there_and_back() {
    const pages<T> x(2 * n_);
    if (!x.data()) return false;
    for (size_t i = 0; i < 2 * n_; ++i) x[i] = noise_at<T>(i);
    EXPECT_EQ((run_fft<F, false>(x.data(), x.data(), n_, ctx_, nullptr)), tavStatusOk);
    EXPECT_EQ((run_fft<F, true>(x.data(), x.data(), n_, ctx_, nullptr)), tavStatusOk);
    long double error = 0, size = 0;
    for (size_t i = 0; i < 2 * n_; ++i) {
      const long double right = noise_at<T>(i), difference = x[i] - right;
      error += difference * difference, size += right * right;
    }
    EXPECT_LE(sqrtl(error), 2 * limit_ * sqrtl(size)) << "round trip";
    return true;
  }

 private:
  size_t index(size_t i, int part) const { return F::split ? i + size_t(part) * n_ : 2 * i + size_t(part); }
  wide   point(const pages<T>& x, size_t i) const { return {x[index(i, 0)], x[index(i, 1)]}; }

  int                       order_;
  size_t                    n_;
  const typename F::record* ctx_;
  long double               limit_;
};

// Whether there was room.
template <class F> bool check_longest(int order) {
  int spec, init, work;
  EXPECT_EQ(call<F::get_size>(order, fftScaleInverse, 0, &spec, &init, &work), tavStatusOk);
  const uint64_t records = uint64_t(spec) + uint64_t(init) + uint64_t(work);
  const uint64_t bytes   = records + (uint64_t(2 * sizeof(typename F::sample)) << order);
  if (available_memory() / 5 * 4 < bytes) return false;

  typename F::record* ctx    = nullptr;
  const TavStatus     status = call<F::init_alloc>(&ctx, order, fftScaleInverse, 0);
  if (status == tavStatusNoMemory) return false;
  EXPECT_EQ(status, tavStatusOk);
  longest<F> transform(order, ctx);
  const bool room = transform.impulse() && transform.there_and_back();
  EXPECT_EQ(call<F::free>(ctx), tavStatusOk);
  return room;
}

TYPED_TEST(FftTakesLong, LongestThatFits) {
  TAV_LONG_TEST();
  const int order = sizeof(typename TypeParam::part) == 4 ? 26 : 24;
  bool      room  = true;
  each_build<TypeParam::forward>([&] { room = room && check_longest<TypeParam>(order); });
  if (!room) GTEST_SKIP() << "not enough memory for order " << order;
}

}  // namespace
