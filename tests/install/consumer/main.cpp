// Usage: in_cxx VARIANT. Adds two arrays and checks that VARIANT (v8 or s8) of the library runs.
#include <tavs.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

struct release {
  void operator()(Tav32f* p) const { tavsFree(p); }
};
using array = std::unique_ptr<Tav32f, release>;

static bool adds() {
  constexpr int length = 1000;
  const array   a{tavsMalloc_32f(length)}, b{tavsMalloc_32f(length)}, sum{tavsMalloc_32f(length)};
  return a && b && sum                                                       //
         && tavsSet_32f(1.5f, a.get(), length) == tavStatusOk                //
         && tavsSet_32f(2.0f, b.get(), length) == tavStatusOk                //
         && tavsAdd_32f(a.get(), b.get(), sum.get(), length) == tavStatusOk  //
         && std::all_of(sum.get(), sum.get() + length, [](Tav32f v) { return v == 3.5f; });
}

int main(int argc, char** argv) {
  const std::string_view running{tavsGetLibVersion()->targetCode};
  if (!adds()) return std::fprintf(stderr, "in_cxx: the library does not add\n"), 1;
  if (argc != 2 || running != argv[1]) return std::fprintf(stderr, "in_cxx: variant %s runs\n", running.data()), 1;
}
