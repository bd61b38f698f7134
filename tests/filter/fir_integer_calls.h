// The integer FIR filters by type, and a filter for one scope.
#pragma once
#include <memory>
#include <optional>

#include "filter/fir_calls.h"
#include "oracle/fir_integer.h"

namespace test::words {

#define TAV_WORD_FAMILY(form, taps, data, state)                                                               \
  fir_family<taps, data, state, &::tavsFIRGetStateSize##form, &::tavsFIRInit##form, &::tavsFIRInitAlloc##form, \
             &::tavsFIRFree##form, &::tavsFIR##form##_Sfs, &::tavsFIR##form##_ISfs, &::tavsFIROne##form##_Sfs, \
             &::tavsFIRGetTaps##form, &::tavsFIRSetTaps##form, &::tavsFIRGetDlyLine##form, &::tavsFIRSetDlyLine##form>
using fir_16s       = TAV_WORD_FAMILY(_16s, Tav16s, Tav16s, FIRState_16s);
using fir_32s_16s   = TAV_WORD_FAMILY(32s_16s, Tav32s, Tav16s, FIRState32s_16s);
using fir_32sc_16sc = TAV_WORD_FAMILY(32sc_16sc, Tav32sc, Tav16sc, FIRState32sc_16sc);
#undef TAV_WORD_FAMILY

// The calls with taps in floats, of the same states.
template <class Family, class Floats, auto* GetSize, auto* Init, auto* InitAlloc, auto* GetTaps, auto* SetTaps>
struct from_floats {
  using family                      = Family;
  using taps                        = Floats;
  static constexpr auto* get_size   = GetSize;
  static constexpr auto* init       = Init;
  static constexpr auto* init_alloc = InitAlloc;
  static constexpr auto* get_taps   = GetTaps;
  static constexpr auto* set_taps   = SetTaps;
};
using fir_32s_16s32f =
    from_floats<fir_32s_16s, Tav32f, &::tavsFIRGetStateSize32s_16s32f, &::tavsFIRInit32s_16s32f,
                &::tavsFIRInitAlloc32s_16s32f, &::tavsFIRGetTaps32s_16s32f, &::tavsFIRSetTaps32s_16s32f>;
using fir_32sc_16sc32fc =
    from_floats<fir_32sc_16sc, Tav32fc, &::tavsFIRGetStateSize32sc_16sc32fc, &::tavsFIRInit32sc_16sc32fc,
                &::tavsFIRInitAlloc32sc_16sc32fc, &::tavsFIRGetTaps32sc_16sc32fc, &::tavsFIRSetTaps32sc_16sc32fc>;

// In memory of exactly the size told, at some address, or allocated.
template <class F> class filter {
 public:
  using taps = typename F::taps;
  using data = typename F::data;

  filter(const std::vector<taps>& h, int tapsFactor, const data* dly, placement where) {
    int size = 0;
    EXPECT_EQ(call<F::get_size>(int(h.size()), &size), tavStatusOk);
    home_ = std::make_unique<arena>(size_t(size) + 64);
    memory_.emplace(*home_, size_t(size), where);
    EXPECT_EQ(call<F::init>(&state_, h.data(), int(h.size()), tapsFactor, dly, memory_->data()), tavStatusOk);
  }
  filter(const std::vector<taps>& h, int tapsFactor, const data* dly = nullptr) {
    EXPECT_EQ(call<F::init_alloc>(&state_, h.data(), int(h.size()), tapsFactor, dly), tavStatusOk);
  }
  ~filter() {
    if (memory_) {
      EXPECT_TRUE(memory_->guards_intact());
    }
    EXPECT_EQ(call<F::free>(state_), tavStatusOk);
  }
  filter(const filter&)            = delete;
  filter& operator=(const filter&) = delete;

  typename F::state* get() const { return state_; }

 private:
  typename F::state*          state_ = nullptr;
  std::unique_ptr<arena>      home_;
  std::optional<array<Tav8u>> memory_;
};

// What becomes of a piece of the signal.
enum class way { block, in_place, singly };
inline constexpr int ways = 3;

template <class F, class D = typename F::data>
TavStatus run(way how, const D* src, D* dst, int len, typename F::state* state, int scale) {
  if (how == way::block) return call<F::block>(src, dst, len, state, scale);
  if (how == way::in_place) return call<F::in_place>(dst, len, state, scale);
  for (int i = 0; i < len; ++i) {
    D val;
    memcpy(&val, static_cast<const void*>(src + i), sizeof val);
    if (const TavStatus status = call<F::one>(val, dst + i, state, scale)) return status;
  }
  return tavStatusOk;
}

// A filter by definition: the signal so far, and the taps as they are kept.
template <class F> struct model {
  using data = typename F::data;
  oracle::kept_taps<typename F::taps> kept;
  std::vector<data>                   signal;

  void set_delay(const std::vector<data>& newest_first) { signal.assign(newest_first.rbegin(), newest_first.rend()); }
  std::vector<data> delay() const {
    std::vector<data> newest_first(kept.taps.size());
    for (size_t k = 0; k < newest_first.size() && k < signal.size(); ++k)
      newest_first[k] = signal[signal.size() - 1 - k];
    return newest_first;
  }
  data filter(data val, int scale) {
    signal.push_back(val);
    return oracle::word_result<data>(oracle::wrapped_sum(kept.taps, signal, signal.size() - 1),
                                     int64_t(kept.scale) - scale);
  }
};

}  // namespace test::words
