// tavsSortRadixIndex: stable positions of keys that lie any number of bytes apart.
#include "harness/faults.h"
#include "harness/long_array.h"
#include "harness/radix_inputs.h"

using namespace test;

namespace {

constexpr int longest_stride = 13;

struct homes {
  explicit homes(size_t longest) : records(longest * longest_stride), dst(longest * 4), tmp(longest * 4) {}
  arena records, dst, tmp;
};

// Records of any bytes, each with a key in front; the last ends with its key.
template <class T> std::vector<uint8_t> records_of(const std::vector<T>& keys, size_t stride) {
  source_of_data data(9);
  auto           bytes = data.values<uint8_t>((keys.size() - 1) * stride + sizeof(T));
  for (size_t i = 0; i < keys.size(); ++i) memcpy(bytes.data() + i * stride, &keys[i], sizeof(T));
  return bytes;
}

template <auto* Export, bool Descending, class T>
void check_one(homes& at, const named_input<T>& input, int stride, int turn) {
  const size_t   len     = input.values.size();
  const auto     where   = radix_placement(turn);
  const auto     records = records_of(input.values, size_t(stride));
  array<uint8_t> src(at.records, records.size(), where);
  array<int>     dst(at.dst, len, radix_placement(turn * 5 + 4)), tmp(at.tmp, len, radix_placement(turn * 7 + 3));
  const std::vector<int> before(len, -77);
  src.assign(records), dst.assign(before), tmp.assign(before);

  const auto context = [&] {
    return testing::Message() << input.name << ", length " << len << ", stride " << stride << ", src " << where;
  };
  const T* const keys = reinterpret_cast<const T*>(src.data());
  ASSERT_EQ(call<Export>(keys, stride, dst.data(), tmp.data(), int(len)), tavStatusOk) << context();
  ASSERT_EQ(first_difference(dst.values(), oracle::sorted_positions(input.values, Descending)), -1) << context();
  ASSERT_TRUE(dst.guards_intact() && tmp.guards_intact()) << "written outside: " << context();
  ASSERT_TRUE(src.values() == records) << "src written: " << context();
  if constexpr (sizeof(T) == 1) {
    ASSERT_TRUE(tmp.values() == before) << "tmpIndex written: " << context();
  }
}

// Also lengths at which other digits serve, or words begin to carry parts of keys.
std::set<int> lengths() {
  std::set<int> all;
  for (int n = 1; n <= 300; ++n) all.insert(n);
  for (int n : {598, 599, 600, 601, 2047, 2048, 2049, 2050, 100000}) all.insert(n);
  return all;
}

template <auto* Export, bool Descending, class T> void check(TavStatus (*)(const T*, int, int*, int*, int)) {
  const auto all = lengths();
  homes      at(size_t(*all.rbegin()));
  const int  strides[] = {int(sizeof(T)), 5, 12, int(sizeof(T)) + 1, 13, 8};
  each_build<Export>([&] {
    int        turn = 0;
    const auto run  = [&](const named_input<T>& input) {
      check_one<Export, Descending>(at, input, strides[size_t(turn) % std::size(strides)], turn), ++turn;
      return !testing::Test::HasFatalFailure();
    };
    for (int len : all) {
      auto inputs = radix_inputs<T>(len, uint32_t(len));
      if (len > 2050) inputs.resize(2);
      for (const auto& input : inputs)
        if (!run(input)) return;
    }
    for (int len : {100, 1203})
      for (const auto& input : one_bit_inputs<T>(len))
        if (!run(input)) return;
  });
}

// Around the longest arrays whose words carry a key's last digit and a position. Pairs of key and position that rise
// strictly are all different, so none is missing.
template <auto* Export, class T> void check_long(int len) {
  source_of_data   data(3);
  std::vector<T>   keys((size_t(len)));
  std::vector<int> dst(keys.size()), tmp(keys.size());
  for (T& k : keys) k = T(data.bits());
  ASSERT_EQ(call<Export>(keys.data(), int(sizeof(T)), dst.data(), tmp.data(), len), tavStatusOk);
  ASSERT_TRUE(std::all_of(dst.begin(), dst.end(), [=](int p) { return p >= 0 && p < len; })) << len;
  const auto rises = [&](int a, int b) { return std::pair(keys[size_t(a)], a) < std::pair(keys[size_t(b)], b); };
  for (size_t i = 1; i < dst.size(); ++i)
    if (!rises(dst[i - 1], dst[i])) FAIL() << "length " << len << ", position " << i;
}

TEST(SortRadixIndex, WordsFilledByKeyAndPosition) {
  for (int more : {0, 1}) {
    check_long<&::tavsSortRadixIndexAscend_32u, Tav32u>((1 << 22) + more);
    check_long<&::tavsSortRadixIndexAscend_16s, Tav16s>((1 << 24) + more);
  }
}

// Written out: two keys among others, in both directions.
TEST(SortRadixIndex, EqualKeysKeepTheirOrder) {
  const Tav32f keys[10] = {5, 9, 1, 7, 3, 8, 2, 6, 7, 4};
  int          dst[10], tmp[10];
  EXPECT_EQ(call<&::tavsSortRadixIndexAscend_32f>(keys, 4, dst, tmp, 10), tavStatusOk);
  EXPECT_EQ(std::vector<int>(dst, dst + 10), (std::vector<int>{2, 6, 4, 9, 0, 7, 3, 8, 5, 1}));
  EXPECT_EQ(call<&::tavsSortRadixIndexDescend_32f>(keys, 4, dst, tmp, 10), tavStatusOk);
  EXPECT_EQ(std::vector<int>(dst, dst + 10), (std::vector<int>{1, 5, 3, 8, 7, 0, 9, 4, 6, 2}));
}

// Positions times the stride leave 32 bits.
TEST(SortRadixIndex, KeysFarApart) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "for 64 bits";
  const long_array memory;
  ASSERT_TRUE(memory.ready());
  constexpr int stride  = (1 << 30) - 8192;
  const Tav32s  keys[4] = {30, -10, 20, -40};
  for (size_t i = 0; i < 4; ++i) memcpy(static_cast<char*>(memory.data()) + i * stride, &keys[i], 4);
  int dst[4], tmp[4];
  EXPECT_EQ(call<&::tavsSortRadixIndexAscend_32s>(static_cast<const Tav32s*>(memory.data()), stride, dst, tmp, 4),
            tavStatusOk);
  EXPECT_EQ(std::vector<int>(dst, dst + 4), (std::vector<int>{3, 1, 2, 0}));
}

// The size of an element tells the least stride.
void index_form(const tested& f) {
  const int size   = f.is<const Tav8u*>(0) ? 1 : f.is<const Tav16s*>(0) || f.is<const Tav16u*>(0) ? 2 : 4;
  const int lowest = std::numeric_limits<int>::min();
  faults    bad(f);
  bad.null_pointers();
  const auto add = [&](int stride, int len) {
    bad.add("stride " + std::to_string(stride) + ", length " + std::to_string(len), tavStatusBadSize,
            [=](arguments& a) { a.set(1, stride), a.set(4, len); });
  };
  for (int len : {0, -1, lowest}) add(size, len);
  for (int stride : {size - 1, 0, -1, -size, lowest}) add(stride, 2);
  bad.expect();
}

}  // namespace

#define CASE(type)                                                                         \
  TEST(SortRadixIndex, Ascend_##type) {                                                    \
    check<&::tavsSortRadixIndexAscend_##type, false>(&::tavsSortRadixIndexAscend_##type);  \
  }                                                                                        \
  TEST(SortRadixIndex, Descend_##type) {                                                   \
    check<&::tavsSortRadixIndexDescend_##type, true>(&::tavsSortRadixIndexDescend_##type); \
  }                                                                                        \
  TAV_FAULTS(SortRadixIndexAscend_##type, index_form)                                      \
  TAV_FAULTS(SortRadixIndexDescend_##type, index_form)
CASE(8u) CASE(16s) CASE(16u) CASE(32s) CASE(32u) CASE(32f)
#undef CASE
