// Many threads on one context: each gets the bits that one thread alone gets, with a work area of its own or with none.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "transform/fft_integer_calls.h"
#include "transform/fft_runs.h"

using namespace test;

namespace {

constexpr int thread_count = 8;

template <class F> class FftThreads : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f>;
TYPED_TEST_SUITE(FftThreads, families);

template <class F> class FftThreadsReal : public testing::Test {};
using real_families = testing::Types<fft_perm_32f, fft_ccs_32f, fft_pack_64f>;
TYPED_TEST_SUITE(FftThreadsReal, real_families);

template <class F> class FftThreadsInteger : public testing::Test {};
using integer_forms = testing::Types<fwd_16sc, inv_32s, fwd_pack_16s, inv_ccs_32s, fwd_16s32s>;
TYPED_TEST_SUITE(FftThreadsInteger, integer_forms);

// Runs the work of each thread, all at once.
template <class Work> void in_threads(const Work& work) {
  std::atomic<int>         waiting{thread_count};
  std::vector<std::thread> threads;
  for (int i = 0; i < thread_count; ++i)
    threads.emplace_back([&, i] {
      for (--waiting; waiting > 0;) std::this_thread::yield();
      work(i);
    });
  for (std::thread& t : threads) t.join();
}

// What one thread transforms, there and back, and what that gives without the others.
template <class F> class there_and_back {
 public:
  using T = typename F::part;

  there_and_back(const typename F::record* ctx, int order, int thread)
      : ctx_(ctx), n_(size_t(1) << order), in_place_(thread & 2), given_(2 * n_), there_(2 * n_), back_(2 * n_) {
    source_of_data data{uint32_t(thread)};
    for (T& v : given_) v = T(int32_t(data.bits()));
    int size = 0;
    EXPECT_EQ(call<F::get_buf_size>(ctx, &size), tavStatusOk);
    if (thread & 1) work_.resize(size_t(size) + 1);
    run();
    right_there_ = there_, right_back_ = back_;
  }

  bool holds() {
    std::fill(there_.begin(), there_.end(), T(0));
    std::fill(back_.begin(), back_.end(), T(0));
    return run() && there_ == right_there_ && back_ == right_back_;
  }

 private:
  bool run() {
    Tav8u* const work = work_.empty() ? nullptr : work_.data();
    if (in_place_) there_ = given_;
    const T* const  from     = in_place_ ? there_.data() : given_.data();
    const TavStatus forward  = run_fft<F, false>(from, there_.data(), n_, ctx_, work);
    const TavStatus backward = run_fft<F, true>(there_.data(), back_.data(), n_, ctx_, work);
    return forward == tavStatusOk && backward == tavStatusOk;
  }

  const typename F::record* ctx_;
  size_t                    n_;
  bool                      in_place_;
  std::vector<T>            given_, there_, back_, right_there_, right_back_;
  std::vector<Tav8u>        work_;
};

// Every thread repeats its task on the one context.
template <class Task> void expect_same_bits(std::vector<Task>& tasks, int order) {
  const int        rounds = order < 8 ? 200 : order < 14 ? 20 : 2;
  std::atomic<int> wrong{0};
  in_threads([&](int i) {
    for (int k = 0; k < rounds; ++k) wrong += !tasks[size_t(i)].holds();
  });
  EXPECT_EQ(wrong, 0) << "order " << order;
}

template <class F> void share_one_context() {
  each_build<F::forward>([&] {
    for (int order : {3, 5, 6, 10, 13, 16, 18}) {
      const fft_context<F>           context(order, fftScaleBoth);
      std::vector<there_and_back<F>> tasks;
      for (int i = 0; i < thread_count; ++i) tasks.emplace_back(context.get(), order, i);
      expect_same_bits(tasks, order);
    }
  });
}

TYPED_TEST(FftThreads, ShareOneContext) { share_one_context<TypeParam>(); }
TYPED_TEST(FftThreadsReal, ShareOneContext) { share_one_context<TypeParam>(); }

// One transform of integers, and what it gives without the others.
template <class F> class integer_task {
 public:
  integer_task(const typename F::record::record* ctx, int order, int thread)
      : ctx_(ctx),
        order_(order),
        given_(elements(F::from, n())),
        right_(elements(F::to, n())),
        result_(elements(F::to, n())) {
    source_of_data data{uint32_t(thread)};
    for (auto& v : given_) v = typename F::src(data.bits());
    int size = 0;
    EXPECT_EQ(call<F::record::get_buf_size>(ctx, &size), tavStatusOk);
    if (thread & 1) work_.resize(size_t(size) + 1);
    EXPECT_TRUE(run(right_));
  }

  bool holds() {
    std::fill(result_.begin(), result_.end(), typename F::dst(0));
    return run(result_) && result_ == right_;
  }

 private:
  size_t n() const { return size_t(1) << order_; }
  bool   run(std::vector<typename F::dst>& to) {
      Tav8u* const work = work_.empty() ? nullptr : work_.data();
      return F::run(given_.data(), to.data(), n(), ctx_, order_ / 2, work) == tavStatusOk;
  }

  const typename F::record::record* ctx_;
  int                               order_;
  std::vector<typename F::src>      given_;
  std::vector<typename F::dst>      right_, result_;
  std::vector<Tav8u>                work_;
};

TYPED_TEST(FftThreadsInteger, ShareOneContext) {
  using F = TypeParam;
  each_build<F::exported>([&] {
    for (int order : {2, 6, 11, 15}) {
      const integer_context<typename F::record> context(order, fftScaleNone, 0);
      std::vector<integer_task<F>>              tasks;
      for (int i = 0; i < thread_count; ++i) tasks.emplace_back(context.get(), order, i);
      expect_same_bits(tasks, order);
    }
  });
}

// Set-up, calls and release side by side: what contexts have in common does not change.
TYPED_TEST(FftThreads, HaveContextsOfTheirOwn) {
  using F = TypeParam;
  each_build<F::forward>([&] {
    const auto run = [](int thread) {
      const int            order = 8 + thread % 6;
      const fft_context<F> context(order, fftScaleInverse);
      return points<F>(
          fft_room<F>(size_t(1) << order).template run<false>(noise<F>(size_t(1) << order, uint32_t(thread)), context));
    };
    std::vector<points<F>> right;
    for (int i = 0; i < thread_count; ++i) right.push_back(run(i));
    std::atomic<int> wrong{0};
    in_threads([&](int i) {
      for (int k = 0; k < 5; ++k) wrong += first_difference(run(i), right[size_t(i)]) != -1;
    });
    EXPECT_EQ(wrong, 0);
  });
}

}  // namespace
