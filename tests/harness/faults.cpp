#include "harness/faults.h"

#include <algorithm>

namespace test {

size_t tested::pointers() const {
  return size_t(std::count_if(parameters, parameters + count, [](const parameter& p) { return p.kind == p.pointer; }));
}

arguments::arguments(const tested& f, source_of_data& data, int number) : f_(f), blocks_(f.count), values_(f.count) {
  for (size_t i = 0; i < f.count; ++i) {
    blocks_[i] = data.values<uint8_t>(256);
    if (f.is_pointer(i))
      put(i, blocks_[i].data());
    else if (f.parameters[i].kind != parameter::other)
      set(i, number);
  }
  kept_ = blocks_;
}

void arguments::set_real(size_t i, double v) {
  if (f_.parameters[i].bytes == sizeof(float))
    put(i, float(v));
  else
    put(i, v);
}

void arguments::set_lowest(size_t i) {
  const parameter& p = f_.parameters[i];
  if (p.kind == parameter::integer)
    set(i, std::numeric_limits<int64_t>::min() >> (64 - 8 * p.bytes));
  else
    set(i, p.bytes == sizeof(float) ? double(std::numeric_limits<float>::lowest())
                                    : std::numeric_limits<double>::lowest());
}

faults& faults::add(std::string what, TavStatus status, change apply) {
  all_.push_back({std::move(what), status, std::move(apply)});
  return *this;
}

faults& faults::null(size_t i) {
  return add("argument " + std::to_string(i) + " null", tavStatusNullPointer, [i](arguments& a) { a.spoil(i); });
}

faults& faults::null_pointers() {
  for (size_t i = 0; i < f_.count; ++i)
    if (f_.is_pointer(i)) null(i);
  return *this;
}

faults& faults::below_one(size_t i, TavStatus status) {
  return value(i, 0, status).value(i, -1, status).value(i, std::numeric_limits<int>::min(), status);
}

void faults::expect_one(const std::string& what, TavStatus status, std::initializer_list<const change*> changes) const {
  source_of_data data(7);
  arguments      a(f_, data, 2);
  for (const change* apply : changes) (*apply)(a);
  EXPECT_EQ(a.call(), status) << what;
  EXPECT_TRUE(a.untouched()) << what << ": something was written";
}

void faults::expect() const {
  each_build_of(f_.split, [&] {
    for (auto i = all_.begin(); i != all_.end(); ++i) {
      expect_one(i->what, i->status, {&i->apply});
      for (auto j = i + 1; j != all_.end(); ++j)
        expect_one(i->what + " and " + j->what, i->status, {&j->apply, &i->apply});
    }
  });
}

void faults::expect_after(const std::string& what, const change& first) const {
  each_build_of(f_.split, [&] {
    for (const fault& f : all_) expect_one(f.what + ", " + what, f.status, {&first, &f.apply});
  });
}

std::vector<fault_row>& fault_rows() {
  static std::vector<fault_row> rows;
  return rows;
}

TEST(Faults, EveryRow) {
  for (const fault_row& row : fault_rows()) {
    SCOPED_TRACE(row.name);
    row.run(row.function);
  }
}

TEST(Faults, EveryExportHasOneRow) {
  std::vector<std::string> have, want;
  for (const fault_row& row : fault_rows()) have.push_back(row.name);
#define TAV_SHARED(name) want.push_back("tavs" #name);
#define TAV_SPLIT(name) want.push_back("tavs" #name);
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
  std::sort(have.begin(), have.end());
  std::sort(want.begin(), want.end());
  EXPECT_EQ(have, want);
}

}  // namespace test
