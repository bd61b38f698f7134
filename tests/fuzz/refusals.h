// Calls as they are made, and calls with one argument that may be refused: a null pointer, a record that is none, a
// number below 1.
#pragma once
#include <tuple>

#include "fuzz/input.h"

namespace fuzz {

template <class T> T* at(const memory& m) { return reinterpret_cast<T*>(m.data()); }

struct plainly {
  template <class... P> TavStatus operator()(TavStatus (*f)(P...), std::type_identity_t<P>... args) const {
    return f(args...);
  }
};

template <class T>
concept complete = requires {
  sizeof(T);
};
template <class A>
inline constexpr bool is_record_pointer = std::is_pointer_v<A> && !complete<std::remove_pointer_t<A>>;

// What is refused writes nothing to `held`, unless taps turn out to be bad while they are taken over. A record that is
// none is refused.
struct spoilt {
  const char*                name;
  input&                     in;
  std::vector<const memory*> held;

  template <class... P> TavStatus operator()(TavStatus (*f)(P...), std::type_identity_t<P>... args) const {
    for (const memory* m : held) m->keep();
    std::tuple<P...> given(args...);
    const memory     stray(in, sizeof(uint32_t), Tav8u{});
    bool             is_stray = false;
    int              place    = in.below(int(sizeof...(P)));
    std::apply([&](P&... p) { ((place-- == 0 ? spoil(p, stray, is_stray) : void()), ...); }, given);
    const TavStatus status = std::apply(f, given);
    if (status >= 0 && is_stray) fail(name, "a record that is none was accepted");
    const bool taken_over = status >= 0 || status == tavStatusDivideByZero;
    if (!taken_over && !std::all_of(held.begin(), held.end(), [](const memory* m) { return m->as_before(); }))
      fail(name, "a call was refused, and something was written");
    return status;
  }

 private:
  template <class A> void spoil(A& value, const memory& stray, bool& is_stray) const {
    if constexpr (std::is_same_v<A, int>) {
      value = in.refused_length();
    } else if constexpr (is_record_pointer<A>) {
      is_stray = value != nullptr && in.one_in(2);
      if (is_stray) spoil_id(value, stray.data());
      value = is_stray ? reinterpret_cast<A>(stray.data()) : nullptr;
    } else if constexpr (std::is_pointer_v<A>) {
      value = nullptr;
    }
  }

  // The first word of a record tells its kind, the upper half of it the family. Nothing behind it may be read.
  void spoil_id(const void* record, Tav8u* id) const {
    const int kind = in.below(3);
    if (kind == 0) memset(id, 0, sizeof(uint32_t));
    if (kind == 1) memcpy(id, record, sizeof(uint32_t)), id[2 + in.below(2)] ^= Tav8u(1 << in.below(8));
  }
};

// f(args...), with `more` behind them if it takes one more.
template <class Call, class F, class More, class... A>
TavStatus call_with(const Call& call, F* f, More more, A... args) {
  if constexpr (std::is_invocable_v<F*, A..., More>)
    return call(f, args..., more);
  else
    return call(f, args...);
}

}  // namespace fuzz
