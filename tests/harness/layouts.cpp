#include "harness/layouts.h"

#include <memory>

namespace test {

std::set<int> lengths_around(std::initializer_list<int> thresholds, int all_up_to) {
  std::set<int> lengths;
  for (int n = 1; n <= all_up_to; ++n) lengths.insert(n);
  for (int t : thresholds)
    for (int d = -2; d <= 2; ++d)
      if (t + d > 0) lengths.insert(t + d);
  return lengths;
}

std::ostream& operator<<(std::ostream& out, const layout& l) {
  return out << "dst " << l.dst << ", src " << l.src << " and " << l.src_step << " more for each further source";
}

std::vector<layout> all_layouts() {
  std::vector<layout> all;
  for (unsigned d = 0; d < 16; ++d)
    for (unsigned s : {0u, d, (d * 7 + 3) % 16}) all.push_back({{placement::inside, d}, {placement::inside, s}, s});
  all.push_back({{placement::begins_at_page}, {placement::begins_at_page}, 0});
  all.push_back({{placement::ends_at_page}, {placement::ends_at_page}, 0});
  all.push_back({{placement::begins_at_page}, {placement::ends_at_page}, 0});
  all.push_back({{placement::ends_at_page}, {placement::begins_at_page}, 0});
  return all;
}

std::vector<layout> few_layouts() {
  return {{{placement::inside, 0}, {placement::inside, 0}, 0},
          {{placement::inside, 8}, {placement::inside, 4}, 4},
          {{placement::inside, 3}, {placement::inside, 0}, 1},
          {{placement::ends_at_page}, {placement::ends_at_page}, 0}};
}

namespace {

placement of_array(const layout& l, unsigned k) {
  placement where = k == 0 ? l.dst : l.src;
  if (k > 0) where.offset = (where.offset + (k - 1) * l.src_step) % 16;
  return where;
}

void check_one_layout(const std::vector<std::unique_ptr<arena>>& homes, source_of_data& data, int len, const layout& l,
                      const layout_test& t) {
  std::vector<uint8_t*> placed;
  for (unsigned k = 0; k < t.arrays.size(); ++k) {
    t.arrays[k]->draw(data, size_t(len));
    placed.push_back(homes[k]->place(t.arrays[k]->bytes(), of_array(l, k)));
    t.arrays[k]->put(placed[k]);
  }
  const TavStatus want  = t.expected();  // which makes the destination what it shall become
  const TavStatus got   = t.call(placed.data(), len);
  const auto      where = [&] { return testing::Message() << "length " << len << ", " << l; };
  ASSERT_EQ(got, want) << where();
  if (const long i = t.arrays[0]->first_difference(placed[0]); i >= 0)
    FAIL() << where() << ", first wrong element: " << i;
  ASSERT_TRUE(homes[0]->guards_intact()) << "written outside dst: " << where();
  for (size_t k = 1; k < placed.size(); ++k)
    ASSERT_LT(t.arrays[k]->first_difference(placed[k]), 0) << "a source was written: " << where();
}

}  // namespace

void check_layouts_of(const layout_test& t, bool split) {
  const size_t                        room = size_t(*t.lengths.rbegin()) * largest_element;
  std::vector<std::unique_ptr<arena>> homes;
  for (size_t k = 0; k < t.arrays.size(); ++k) homes.push_back(std::make_unique<arena>(room));
  const auto all = all_layouts(), few = few_layouts();
  each_build_of(split, [&] {
    source_of_data data(t.seed);
    SCOPED_TRACE(testing::Message() << "seed " << t.seed);
    for (int len : t.lengths)
      for (const layout& l : len <= few_layouts_above ? all : few) {
        check_one_layout(homes, data, len, l, t);
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

}  // namespace test
