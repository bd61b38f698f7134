// Calls of every export that works on arrays: what its arguments are is known from their types and, for a few, from the
// name. The rows come from the list of exports, so that a new one is called without being written here.
#include <list>
#include <string_view>
#include <tuple>

#include "frame/variant_table.h"
#include "fuzz/in_place.h"
#include "fuzz/input.h"

namespace fuzz {
namespace {

bool holds(std::string_view name, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* w) { return name.find(w) != name.npos; });
}
bool begins(std::string_view name, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* w) { return name.rfind(w, 0) == 0; });
}

// How the arrays of a call are measured.
struct measures {
  int    given;             // the length that is passed
  size_t elements = 0;      // of a source
  size_t results  = 0;      // of a destination
  size_t bytes    = 0;      // of an array of bytes, which may hold elements of another width
  int    lines    = 0;      // arrays in an array of arrays, which share the elements
  bool   stride   = false;  // an integer is the distance of a source's elements in bytes
  bool   offsets  = false;  // all integers but the length are offsets in bits
};

// Reductions have their length before the results, which are one each.
bool is_reduction(std::string_view name) {
  return begins(name, {"Sum_", "Mean", "StdDev", "Norm_", "NormDiff_", "DotProd", "Max_", "Min_", "MaxIndx", "MinIndx",
                       "MaxAbs", "MinAbs", "MinMax", "MaxOrder", "CountInRange", "ZeroCrossing", "Update"});
}

template <class A> inline constexpr bool is_count = std::is_same_v<A, int> || std::is_same_v<A, unsigned>;

// Which argument is the length: mostly the first integer behind the last pointer.
template <class... A> size_t place_of_length(std::string_view name) {
  constexpr bool count[] = {is_count<A>...}, pointer[] = {std::is_pointer_v<A>...};
  constexpr auto last = [](const bool* flags) {
    size_t n = sizeof...(A);
    while (n > 0 && !flags[n - 1]) --n;
    return n - 1;
  };
  const auto first = [&](size_t from) { return size_t(std::find(count + from, std::end(count), true) - count); };
  if (holds(name, {"_1u"})) return last(count);
  if (holds(name, {"_D2L"})) return first(0) + 1;
  if (is_reduction(name) || begins(name, {"PackBits"})) return first(0);
  return first(last(pointer) + 1);
}

measures measure(std::string_view name, bool is_unsigned, input& in) {
  const int    len = in.length();
  const size_t n   = size_t(len);
  measures     m{.given = len, .elements = n, .results = n, .bytes = n};
  if (in.one_in(24)) m.given = is_unsigned ? 0 : in.refused_length();

  if (holds(name, {"_D2L"})) {
    m.lines    = 1 + in.below(4);
    m.elements = m.results = m.bytes = n * size_t(m.lines);
  }
  if (holds(name, {"24"})) m.bytes *= 3;
  if (holds(name, {"_1u"})) m.offsets = true, m.bytes = (n + 7) / 8 + 1;
  if (begins(name, {"PackBits"})) m.offsets = true, m.bytes = 4 * n + 1;
  m.stride = begins(name, {"SortRadixIndex"});
  if (is_reduction(name)) m.results = 1;
  return m;
}

// The arguments of one call, drawn in their order.
class arguments {
 public:
  arguments(input& in, const measures& m, size_t length)
      : in_(in), m_(m), length_(length), null_(in.one_in(24) ? in.below(4) : -1) {}

  template <class A> A next() {
    const size_t place = place_++;
    if constexpr (!std::is_pointer_v<A>)
      return place == length_ ? A(length<A>()) : number<A>();
    else if constexpr (std::is_pointer_v<std::remove_pointer_t<A>>)
      return lines<std::remove_pointer_t<A>>();
    else
      return pointer<std::remove_pointer_t<A>>();
  }

  bool with_null() const { return has_null_; }

  // Sources as before, and after an error destinations too.
  bool untouched(bool all) const {
    return std::all_of(arrays_.begin(), arrays_.end(),
                       [&](const array& a) { return !(all || a.is_source) || a.held.as_before(); });
  }
  void look() const {
    for (const array& a : arrays_) a.held.look();
  }
  std::vector<std::vector<uint8_t>> results() const {
    std::vector<std::vector<uint8_t>> r;
    for (const array& a : arrays_)
      if (a.is_integer && !a.is_source) r.push_back(a.held.content());
    return r;
  }
  void restore() {
    for (array& a : arrays_) a.held.restore();
  }
  // Of a call in place.
  const memory& destination() const {
    return std::find_if(arrays_.begin(), arrays_.end(), [](const array& a) { return !a.is_source; })->held;
  }

 private:
  struct array {
    memory held;
    bool   is_source, is_integer;
  };

  template <class T> T* pointer() {
    if (null_-- == 0) {
      has_null_ = true;
      return nullptr;
    }
    return fresh<T>();
  }

  template <class T> T* fresh() {
    using E = std::remove_const_t<T>;
    if (m_.stride && std::is_const_v<T>) return add<T>(strided_elements<E>());
    return add<T>(sizeof(E) == 1 ? m_.bytes : std::is_const_v<T> ? m_.elements : m_.results);
  }
  template <class T> T* add(size_t n) {
    using E = std::remove_const_t<T>;
    bool is_integer;
    if constexpr (requires(E e) { e.re; })
      is_integer = std::is_integral_v<decltype(E::re)>;
    else
      is_integer = std::is_integral_v<E>;
    arrays_.push_back({memory(in_, n, E{}), std::is_const_v<T>, is_integer});
    return reinterpret_cast<T*>(arrays_.back().held.data());
  }

  // So many that the last one begins within the memory, which ends with or shortly behind it.
  template <class E> size_t strided_elements() {
    stride_ = int(sizeof(E)) + in_.below(3) * in_.below(20);
    return ((m_.elements - 1) * size_t(stride_) + 2 * sizeof(E) - 1) / sizeof(E);
  }

  template <class P> P* lines() {  // P: a pointer to the elements
    using T      = std::remove_pointer_t<P>;
    const auto n = size_t(m_.lines);
    for (size_t i = 0; i < n; ++i)
      lines_[i] = const_cast<std::remove_const_t<T>*>(add<T>((sizeof(T) == 1       ? m_.bytes
                                                              : std::is_const_v<T> ? m_.elements
                                                                                   : m_.results)
                                                             / n));
    return static_cast<P*>(static_cast<void*>(lines_));
  }

  template <class A> A length() {
    if constexpr (is_count<A>) return A(m_.given);
    return {};
  }
  template <class A> A number() {
    if constexpr (std::is_same_v<A, int>) {
      if (m_.stride) return stride_;
      if (m_.lines != 0) return m_.lines;
      return m_.offsets ? in_.below(8) : in_.number();
    }
    return in_.data().value<A>();
  }

  input&           in_;
  measures         m_;
  size_t           length_, place_ = 0;
  int              null_, stride_  = 1;
  bool             has_null_ = false;
  void*            lines_[4];
  std::list<array> arrays_;
};

void check(const char* name, TavStatus status, const arguments& args) {
  if (args.with_null() && status >= 0 && !holds(name, {"Indx", "RealToCplx"}))
    fail(name, "a null pointer was accepted");
  const bool keeps_all = status < 0 && !begins(name, {"CartToPolar"});  // which may have written the magnitudes
  if (!args.untouched(keeps_all))
    fail(name, keeps_all ? "an error, and something was written" : "a source was written");
  args.look();
}

// A call in place gives what the call apart gives.
template <class... A>
void check_apart(const char* name, TavStatus status, const arguments& args, const std::tuple<A...>& values, input& in) {
  using form = apart<A...>;
  if constexpr (form::possible) {
    using T          = typename form::element;
    auto* const call = export_of<typename form::function>(name_apart(name));
    if (call == nullptr || status < 0) return;
    const memory& done = args.destination();
    const size_t  n    = done.size() / sizeof(T);
    const memory  from(in, n, T{}), to(in, n, T{});
    done.copy_before(from.data());
    const auto apart_from_it = [&](A... a) {
      return form::call(call, reinterpret_cast<const T*>(from.data()), reinterpret_cast<T*>(to.data()), a...);
    };
    if (std::apply(apart_from_it, values) != status) fail(name, "the call apart has another status");
    const auto a = done.values<T>(), b = to.values<T>();
    if (!std::equal(a.begin(), a.end(), b.begin(), agree<T>)) fail(name, "the call apart gives other results");
  }
}

template <class... A> void call_with_arrays(const char* name, void (*function)(), input& in) {
  const size_t           length        = place_of_length<A...>(name);
  const bool             is_unsigned[] = {std::is_same_v<A, unsigned>...};
  arguments              args(in, measure(name, is_unsigned[length], in), length);
  const std::tuple<A...> values{args.template next<A>()...};
  const auto             run = [&](uint32_t variant) {
    tav::tav_variant_index = variant;
    const TavStatus status = std::apply(reinterpret_cast<TavStatus (*)(A...)>(function), values);
    check(name, status, args);
    return status;
  };

  const TavStatus status  = run(0);
  const auto      results = args.results();
  check_apart<A...>(name, status, args, values, in);
  args.restore();
  if (run(1) != status) fail(name, "the variants differ in their status");
  if (args.results() != results) fail(name, "the variants differ in integers");
}

// Arrays and numbers; no records, and no pointers to memory of any kind.
template <class A> constexpr bool is_plain() {
  if constexpr (std::is_pointer_v<A>)
    return is_plain<std::remove_cv_t<std::remove_pointer_t<A>>>();
  else
    return requires { sizeof(A); };
}

template <class... A> void add(std::vector<row>& rows, const char* name, TavStatus (*function)(A...)) {
  if (begins(name, {"FFT", "FIR", "IIR"})) return;
  if constexpr ((is_plain<A>() && ...))
    rows.push_back({name, reinterpret_cast<void (*)()>(function), &call_with_arrays<A...>});
}
template <class R, class... A> void add(std::vector<row>&, const char*, R (*)(A...)) {}  // no status: memory, version

}  // namespace

void add_array_rows(std::vector<row>& rows) {
#define TAV_SHARED(name) add(rows, #name, &::tavs##name);
#define TAV_SPLIT(name) add(rows, #name, &::tavs##name);
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
}

}  // namespace fuzz
