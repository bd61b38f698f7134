// Runs a function that makes one result of an array, over lengths, alignments and page ends of the source, with the
// result at any address, and compares it bit by bit.
//
//   check_result<&::tavsMaxOrder_16s, Tav16s, int>(lengths, draw, call, expected);
//
// `draw(data, len)` gives the source; `call(src, len, result)` makes the call; `expected(src, result)` overwrites the
// result, which holds what stood there before, and returns the status.
#pragma once
#include "harness/layouts.h"

namespace test {

template <auto* Export, class T, class R, class Draw, class Call, class Expected>
void check_result(const std::set<int>& lengths, const Draw& draw, const Call& call, const Expected& expected) {
  const size_t room = size_t(*lengths.rbegin()) * sizeof(T);
  arena        home(room), result_home(sizeof(R));
  each_build<Export>([&] {
    source_of_data data(1);
    const auto     all = all_layouts(), few = few_layouts();
    for (int len : lengths)
      for (const layout& l : len <= few_layouts_above ? all : few) {
        const std::vector<T> values = draw(data, len);
        array<T>             src(home, values.size(), l.src);
        array<R>             result(result_home, 1, l.dst);
        src.assign(values);
        R want = data.value<R>();
        result.assign({want});
        const TavStatus status = expected(values, want);
        const auto      where  = [&] { return testing::Message() << "length " << len << ", " << l; };
        ASSERT_EQ(call(src.data(), len, result.data()), status) << where();
        ASSERT_TRUE(same(result.values()[0], want)) << where() << ": " << result.values()[0] << ", not " << want;
        ASSERT_TRUE(result.guards_intact()) << where();
        ASSERT_LT(first_difference(src.values(), values), 0) << "the source was written: " << where();
      }
  });
}

// While it stands, denormals are flushed and read as zeros, and invalid operations trap.
struct unusual_mode {
  unusual_mode() : callers_(_mm_getcsr()) { _mm_setcsr((callers_ | 0x8040) & ~0x80u); }
  ~unusual_mode() { _mm_setcsr(callers_); }
  unusual_mode(const unusual_mode&)            = delete;
  unusual_mode& operator=(const unusual_mode&) = delete;

 private:
  unsigned callers_;
};

}  // namespace test
