// The status rows: for each export, bad arguments alone and in pairs, the status each call must give, and the promise
// that it writes nothing. One TAV_FAULTS row an export; a test demands that every export of the list has one.
//
//   TAV_FAULTS(Copy_8u, pointers_then_length)
//
// A row names a function of `tested`, which lists the faults in the order in which the export looks for them:
//
//   void pointers_then_length(const tested& f) { faults(f).null_pointers().below_one(f.count - 1).expect(); }
#pragma once
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "harness/builds.h"
#include "harness/data.h"

namespace test {

class arguments;

struct parameter {
  enum { pointer, integer, real, other } kind;
  size_t      bytes;
  const void* type;  // the same for the same type
};

template <class T> inline constexpr char type_mark = 0;

template <class T>
inline constexpr parameter parameter_of{std::is_pointer_v<T>          ? parameter::pointer
                                        : std::is_integral_v<T>       ? parameter::integer
                                        : std::is_floating_point_v<T> ? parameter::real
                                                                      : parameter::other,
                                        sizeof(T), &type_mark<T>};

// An export whatever its parameters.
struct tested {
  void (*function)();
  TavStatus (*call)(void (*function)(), const arguments&);
  const parameter* parameters;
  size_t           count;
  bool             split;

  bool                    is_pointer(size_t i) const { return parameters[i].kind == parameter::pointer; }
  template <class T> bool is(size_t i) const { return parameters[i].type == &type_mark<T>; }
  size_t                  pointers() const;
};

// The arguments of a call: pointers show to blocks of random bytes, which must survive; numbers are `number`.
class arguments {
 public:
  arguments(const tested& f, source_of_data& data, int number);

  void                    spoil(size_t i) { values_[i] = {}; }  // null, or zero
  void                    set_lowest(size_t i);
  template <class V> void set(size_t i, V v) {
    if constexpr (std::is_pointer_v<V>)
      put(i, const_cast<void*>(static_cast<const void*>(v)));
    else if constexpr (std::is_floating_point_v<V>)
      set_real(i, v);
    else
      f_.parameters[i].kind == parameter::real ? set_real(i, double(v)) : put(i, int64_t(v));
  }
  template <class T> T get(size_t i) const {
    T v;
    memcpy(&v, &values_[i], sizeof v);
    return v;
  }

  TavStatus call() const { return f_.call(f_.function, *this); }
  bool      untouched() const { return blocks_ == kept_; }

 private:
  struct alignas(16) value {
    uint8_t bytes[16];
  };
  template <class V> void put(size_t i, V v) { memcpy(&(values_[i] = {}), &v, sizeof v); }
  void                    set_real(size_t i, double v);

  const tested&                     f_;
  std::vector<std::vector<uint8_t>> blocks_, kept_;
  std::vector<value>                values_;
};

template <class... P> TavStatus call_erased(void (*function)(), const arguments& a) {
  return [&]<size_t... I>(std::index_sequence<I...>) {
    return checked_call(reinterpret_cast<TavStatus (*)(P...)>(function), a.get<P>(I)...);
  }
  (std::index_sequence_for<P...>{});
}

template <class R, class... P> tested erased(R (*function)(P...), bool split) {
  static constexpr parameter all[] = {parameter_of<P>..., {}};
  tested                     f{reinterpret_cast<void (*)()>(function), nullptr, all, sizeof...(P), split};
  if constexpr (std::is_same_v<R, TavStatus>) f.call = call_erased<P...>;
  return f;
}

using fault_order = void (*)(const tested&);

struct fault_row {
  const char* name;
  tested      function;
  fault_order run;
};

std::vector<fault_row>& fault_rows();

struct fault_registration {
  fault_registration(const fault_row& row) { fault_rows().push_back(row); }
};

#define TAV_FAULTS(name, ...)                             \
  static const test::fault_registration faults_of_##name( \
      {"tavs" #name, test::erased(&::tavs##name, tav::is_split<&::tavs##name>), __VA_ARGS__});

// Changes of the arguments that are faults, in the order of the checks.
class faults {
 public:
  using change = std::function<void(arguments&)>;

  explicit faults(const tested& f) : f_(f) {}

  faults& add(
      std::string what, TavStatus status, change apply = [](arguments&) {});
  faults& null(size_t i);
  faults& null_pointers();
  faults& below_one(size_t i, TavStatus status = tavStatusBadSize);

  template <class V> faults& value(size_t i, V v, TavStatus status) {
    return add("argument " + std::to_string(i) + " is " + testing::PrintToString(v), status,
               [i, v](arguments& a) { a.set(i, v); });
  }

  // Calls with each fault, and with each two, of which the earlier one wins, in each build; with each one alone when
  // `first` has changed the arguments.
  void expect() const;
  void expect_after(const std::string& what, const change& first) const;

 private:
  struct fault {
    std::string what;
    TavStatus   status;
    change      apply;
  };
  void expect_one(const std::string& what, TavStatus status, std::initializer_list<const change*> changes) const;

  const tested&      f_;
  std::vector<fault> all_;
};

// The orders, to be named in rows. The length is the argument at From_end places from the last one.
template <size_t From_end> void pointers_then_length_at(const tested& f) {
  faults(f).null_pointers().below_one(f.count - 1 - From_end).expect();
}
template <size_t From_end> void length_then_pointers_at(const tested& f) {
  faults(f).below_one(f.count - 1 - From_end).null_pointers().expect();
}

// Of a length without a sign only 0 is bad.
template <size_t From_end> void pointers_then_unsigned_length_at(const tested& f) {
  faults(f).null_pointers().value(f.count - 1 - From_end, 0, tavStatusBadSize).expect();
}

inline constexpr fault_order pointers_then_length = pointers_then_length_at<0>;
inline constexpr fault_order length_then_pointers = length_then_pointers_at<0>;
// With a scale factor behind the length.
inline constexpr fault_order pointers_then_length_scaled = pointers_then_length_at<1>;
inline constexpr fault_order length_then_pointers_scaled = length_then_pointers_at<1>;

// For exports that report no status: their rows stand so that the list is complete.
inline void no_status(const tested&) {}

}  // namespace test
