// A reference to something that can be called, so that what calls it need not be a template: tests of many exports then
// share the code that goes through lengths, layouts and builds.
#pragma once
#include <type_traits>

namespace test {

template <class Signature> class callback;

template <class R, class... A> class callback<R(A...)> {
 public:
  template <class F>
  requires(!std::is_same_v<std::remove_cvref_t<F>, callback>) callback(const F& f)
      : what_(&f), run_([](const void* f, A... a) -> R { return (*static_cast<const F*>(f))(a...); }) {}

  R operator()(A... a) const { return run_(what_, a...); }

 private:
  const void* what_;
  R (*run_)(const void*, A...);
};

}  // namespace test
