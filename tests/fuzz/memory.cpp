// Arrays that the library allocates, and what it tells about itself.
#include "frame/variant_table.h"
#include "fuzz/input.h"

namespace fuzz {
namespace {

template <class T, T* (*Malloc)(int)> void call_malloc(const char* name, void (*)(), input& in) {
  const int len   = in.one_in(8) ? in.refused_length() : in.one_in(8) ? in.below(1 << 16) : in.length();
  T* const  array = Malloc(len);
  if ((array != nullptr) != (len >= 1)) fail(name, "other arrays than those of at least one element");
  if (reinterpret_cast<uintptr_t>(array) % 32 != 0) fail(name, "an array is not aligned");
  if (array != nullptr) memset(static_cast<void*>(array), 0x5A, size_t(len) * sizeof(T));
  tavsFree(array);
}

void call_version(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  const TavLibVersion* v = tavsGetLibVersion();
  if (v == nullptr || v->name == nullptr || v->version == nullptr || v->buildDate == nullptr)
    fail(name, "nothing is told");
  if (memcmp(v->targetCode, tav::tav_variant_index == 0 ? "v8" : "s8", 2) != 0) fail(name, "another variant runs");
}

}  // namespace

void add_memory_rows(std::vector<row>& rows) {
#define TAV_ROW(code) {"Malloc_" #code, nullptr, &call_malloc<Tav##code, &tavsMalloc_##code>}
  rows.insert(rows.end(), {TAV_ROW(8u), TAV_ROW(8s), TAV_ROW(16u), TAV_ROW(16s), TAV_ROW(32u), TAV_ROW(32s),
                           TAV_ROW(64s), TAV_ROW(32f), TAV_ROW(64f), TAV_ROW(8sc), TAV_ROW(16sc), TAV_ROW(32sc),
                           TAV_ROW(64sc), TAV_ROW(32fc), TAV_ROW(64fc)});
#undef TAV_ROW
  rows.push_back({"GetLibVersion", nullptr, &call_version});
}

}  // namespace fuzz
