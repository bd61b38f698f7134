// tavsMaxOrder: the order of the largest magnitude, wherever it stands; floats of any exponent, NaNs, infinities.
#include "harness/faults.h"
#include "oracle/counting.h"
#include "result_runs.h"

using namespace test;

namespace {

const std::set<int> lengths = lengths_around({256, 1000});

template <class T> bool has_nan(const std::vector<T>& v) {
  return std::any_of(v.begin(), v.end(), [](T x) { return x != x; });
}

template <auto* Export, class T> void check_order(auto draw) {
  check_result<Export, T, int>(
      lengths, draw, [](const T* src, int len, int* order) { return call<Export>(src, len, order); },
      [](const std::vector<T>& src, int& order) {
        order = oracle::max_order(src);
        return has_nan(src) ? tavStatusWarnNanInData : tavStatusOk;
      });
}

// One element in eight arrays or so is the largest by far.
template <class T> std::vector<T> with_outlier(source_of_data& data, std::vector<T> v, T outlier) {
  if (data.below(2) == 0) v[size_t(data.below(int(v.size())))] = outlier;
  return v;
}

template <class T> std::vector<T> small_integers(source_of_data& data, int len) {
  auto      v     = data.values<T>(size_t(len));
  const int shift = data.below(8 * sizeof(T));
  for (T& x : v) x = T(x >> shift);
  return with_outlier(data, v, data.value<T>());
}

// Of one range of exponents, denormals and zeros among them, or as they come; now and then with a NaN or an infinity.
template <class T> std::vector<T> floats(source_of_data& data, int len) {
  using limits     = std::numeric_limits<T>;
  const int lowest = limits::min_exponent - limits::digits, kind = data.below(4);
  auto      v = data.values<T>(size_t(len));
  if (kind == 0) return v;
  const int below = kind == 1 ? limits::min_exponent - 1 - data.below(limits::digits)
                              : lowest + data.below(limits::max_exponent - lowest);
  for (T& x : v) x = data.below(3) == 0 ? T(0) : T(ldexp(T(int32_t(data.bits())) / T(1u << 31), below));
  if (kind == 3) return v;
  const T outliers[] = {limits::quiet_NaN(),  -limits::quiet_NaN(),   limits::infinity(),
                        -limits::infinity(),  limits::max(),          T(-1),
                        limits::denorm_min(), limits::signaling_NaN()};
  return with_outlier(data, v, outliers[data.below(8)]);
}

TEST(MaxOrder, As16s) { check_order<&::tavsMaxOrder_16s, Tav16s>(small_integers<Tav16s>); }
TEST(MaxOrder, As32s) { check_order<&::tavsMaxOrder_32s, Tav32s>(small_integers<Tav32s>); }
TEST(MaxOrder, As32f) { check_order<&::tavsMaxOrder_32f, Tav32f>(floats<Tav32f>); }
TEST(MaxOrder, As64f) { check_order<&::tavsMaxOrder_64f, Tav64f>(floats<Tav64f>); }

struct outcome {
  int  status, order;
  bool operator==(const outcome&) const = default;
};
std::ostream& operator<<(std::ostream& out, outcome o) {
  return out << "order " << o.order << " with status " << o.status;
}

template <auto* Export, class T> outcome found(const std::vector<T>& src) {
  int             order  = -1000;
  const TavStatus status = call<Export>(src.data(), int(src.size()), &order);
  return {status, order};
}

// Each value alone in an array, at each place, between zeros.
template <auto* Export, class T> void check_places(std::initializer_list<std::pair<T, int>> rows) {
  for (const auto& [value, order] : rows)
    for (size_t n = 1; n < 40; ++n)
      for (size_t i = 0; i < n; ++i) {
        std::vector<T> src(n);
        src[i]                 = value;
        const TavStatus status = value != value ? tavStatusWarnNanInData : tavStatusOk;
        ASSERT_EQ((found<Export, T>(src)), (outcome{status, order})) << value << " at " << i << " of " << n;
      }
}

TEST(MaxOrder, OneValueAmongZeros) {
  using f = std::numeric_limits<Tav32f>;
  using d = std::numeric_limits<Tav64f>;
  check_places<&::tavsMaxOrder_16s, Tav16s>({{0, 0}, {1, 1}, {-1, 1}, {255, 8}, {-256, 9}, {32767, 15}, {-32768, 16}});
  check_places<&::tavsMaxOrder_32s, Tav32s>({{0, 0}, {1, 1}, {-65536, 17}, {INT32_MAX, 31}, {INT32_MIN, 32}});
  check_places<&::tavsMaxOrder_32f, Tav32f>({{0.0f, 0},
                                             {-0.0f, 0},
                                             {1.0f, 1},
                                             {-1.99999988f, 1},
                                             {2.0f, 2},
                                             {0.5f, 0},
                                             {0.25f, -1},
                                             {f::min(), -125},
                                             {f::min() / 2, -126},
                                             {f::denorm_min(), -148},
                                             {f::max(), 128},
                                             {f::infinity(), 129},
                                             {-f::infinity(), 129},
                                             {f::quiet_NaN(), 0},
                                             {-f::quiet_NaN(), 0}});
  check_places<&::tavsMaxOrder_64f, Tav64f>({{0.0, 0},
                                             {-0.0, 0},
                                             {1.0, 1},
                                             {-3.0, 2},
                                             {0.5, 0},
                                             {d::min(), -1021},
                                             {d::min() / 2, -1022},
                                             {d::denorm_min() * 0x1p32, -1041},
                                             {d::denorm_min(), -1073},
                                             {d::max(), 1024},
                                             {d::infinity(), 1025},
                                             {-d::infinity(), 1025},
                                             {d::quiet_NaN(), 0},
                                             {-d::quiet_NaN(), 0}});
}

// NaNs whose topmost bits are an infinity's, and those that are all there is.
TEST(MaxOrder, OfNans) {
  const Tav32f low32 = __builtin_bit_cast(Tav32f, 0x7F800001), nan = std::numeric_limits<Tav32f>::quiet_NaN();
  const Tav64f low64 = __builtin_bit_cast(Tav64f, uint64_t(0x7FF0000000000001));
  for (size_t n = 1; n < 40; ++n) {
    EXPECT_EQ((found<&::tavsMaxOrder_32f, Tav32f>(std::vector<Tav32f>(n, nan))), (outcome{tavStatusWarnNanInData, 0}));
    for (size_t i = 0; i < n; ++i) {
      std::vector<Tav32f> singles(n + 1, 6.0f);
      std::vector<Tav64f> doubles(n + 1, -6.0);
      memcpy(&singles[i], &low32, sizeof low32);  // a signalling NaN keeps its bits in a copy
      memcpy(&doubles[i], &low64, sizeof low64);
      EXPECT_EQ((found<&::tavsMaxOrder_32f, Tav32f>(singles)), (outcome{tavStatusWarnNanInData, 3}));
      EXPECT_EQ((found<&::tavsMaxOrder_64f, Tav64f>(doubles)), (outcome{tavStatusWarnNanInData, 3}));
    }
  }
}

// Also where denormals are read as zeros elsewhere, and where arithmetic with a signalling NaN may trap.
TEST(MaxOrder, InAnyFloatingPointMode) {
  const Tav32f       tiny = std::numeric_limits<Tav32f>::denorm_min(), nan = __builtin_bit_cast(Tav32f, 0x7F800001);
  const Tav64f       small = std::numeric_limits<Tav64f>::min() / 4;
  const unusual_mode scope;
  for (size_t n : {1, 21}) {
    EXPECT_EQ((found<&::tavsMaxOrder_32f>(std::vector<Tav32f>(n, tiny))), (outcome{tavStatusOk, -148}));
    EXPECT_EQ((found<&::tavsMaxOrder_64f>(std::vector<Tav64f>(n, small))), (outcome{tavStatusOk, -1023}));
    std::vector<Tav32f> with_nan(n + 1, tiny);
    memcpy(&with_nan[n], &nan, sizeof nan);
    EXPECT_EQ((found<&::tavsMaxOrder_32f>(with_nan)), (outcome{tavStatusWarnNanInData, -148}));
  }
}

}  // namespace

TAV_FAULTS(MaxOrder_16s, length_then_pointers_at<1>)
TAV_FAULTS(MaxOrder_32s, length_then_pointers_at<1>)
TAV_FAULTS(MaxOrder_32f, length_then_pointers_at<1>)
TAV_FAULTS(MaxOrder_64f, length_then_pointers_at<1>)
