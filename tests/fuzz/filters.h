// A filter with a state, whatever its structure: set-up in memory of exactly the size that was told or by allocation,
// a stream in blocks, in place and by single samples, new taps and delay lines on the way, release.
//
// A row has the types `state`, `tap`, `data` and `dly`, the counts of taps and of delay values of a filter of size n,
// and the calls.
#pragma once
#include "frame/variant_table.h"
#include "fuzz/input.h"

namespace fuzz {

// f(args...), with `more` behind them if it takes one more.
template <class F, class More, class... A> TavStatus call_with(F* f, More more, A... args) {
  if constexpr (std::is_invocable_v<F*, A..., More>)
    return f(args..., more);
  else
    return f(args...);
}

template <class Row> class filter {
 public:
  using tap  = typename Row::tap;
  using data = typename Row::data;
  using dly  = typename Row::dly;

  filter(const char* name, input& in) : name_(name), in_(in), n_(in.one_in(8) ? 1 + in.below(90) : 1 + in.below(12)) {
    const memory taps = drawn_taps(), line = drawn_line();
    const dly*   from = in.one_in(2) ? nullptr : at<dly>(line);
    int          size = -1;
    if (Row::get_size(n_, &size) < 0 || size < 1) fail(name, "no size");
    if (in.one_in(2)) {
      alive_ = set_up(Row::init_alloc, taps, from);
    } else {
      memory_ = std::make_unique<memory>(in, size_t(size));
      alive_  = set_up(Row::init, taps, from, memory_->data());
    }
  }
  ~filter() {
    if (alive_ && Row::free(state_) != tavStatusOk) fail(name_, "a state is not released");
  }
  filter(const filter&)            = delete;
  filter& operator=(const filter&) = delete;

  bool alive() const { return alive_; }

  void step() {
    const int kind = in_.below(8);
    if (kind < 3) return block();
    if (kind < 5) return in_place();
    if (kind == 5) return one_by_one();
    if (kind == 6) return line();
    call_with(Row::set_taps, in_.number(), at<tap>(drawn_taps()), state_);  // may refuse them
  }

 private:
  template <class T> static T* at(const memory& m) { return reinterpret_cast<T*>(m.data()); }
  memory                       drawn_taps() { return memory(in_, Row::tap_count(n_), tap{}); }
  memory                       drawn_line() { return memory(in_, Row::dly_count(n_), dly{}); }

  // Taps that no filter can have are refused.
  template <class F, class... M> bool set_up(F* init, const memory& taps, const dly* from, M... mem) {
    TavStatus status;
    if constexpr (std::is_invocable_v<F*, typename Row::state**, const tap*, int, int, const dly*, M...>)
      status = init(&state_, at<tap>(taps), n_, in_.number(), from, mem...);
    else
      status = init(&state_, at<tap>(taps), n_, from, mem...);
    if (status < 0 && status != tavStatusDivideByZero) fail(name_, "no state");
    return status >= 0;
  }

  void block() {
    const int    len = in_.one_in(24) ? in_.refused_length() : length();
    const memory src(in_, size_t(std::max(len, 1)), data{}), dst(in_, size_t(std::max(len, 1)), data{});
    const auto   status =
        call_with(Row::block, in_.number(), static_cast<const data*>(at<data>(src)), at<data>(dst), len, state_);
    if ((status < 0) != (len < 1)) fail(name_, "the block has another status");
    if (!src.as_before()) fail(name_, "the source was written");
    if (status < 0 && !dst.as_before()) fail(name_, "an error, and something was written");
    dst.look();
  }
  void in_place() {
    const int    len = length();
    const memory both(in_, size_t(len), data{});
    if (call_with(Row::in_place, in_.number(), at<data>(both), len, state_) < 0) fail(name_, "the block is refused");
    both.look();
  }
  void one_by_one() {
    for (int count = in_.below(6); count > 0; --count) {
      const memory dst(in_, 1, data{});
      if (call_with(Row::one, in_.number(), in_.data().template value<data>(), at<data>(dst), state_) < 0)
        fail(name_, "the sample is refused");
      dst.look();
    }
  }
  void line() {
    const memory held = drawn_line();
    if (Row::get_dly(state_, at<dly>(held)) < 0) fail(name_, "no delay line");
    held.look();
    const memory next = drawn_line();
    if (Row::set_dly(state_, in_.one_in(4) ? nullptr : at<dly>(next)) < 0) fail(name_, "the delay line is refused");
  }
  int length() { return in_.one_in(16) ? 1 + in_.below(2500) : in_.length(); }

  const char*             name_;
  input&                  in_;
  int                     n_;
  typename Row::state*    state_ = nullptr;
  std::unique_ptr<memory> memory_;
  bool                    alive_ = false;
};

template <class Row> void call_filter(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  filter<Row> f(name, in);
  for (int steps = in.below(6); f.alive() && steps > 0; --steps) f.step();
}

}  // namespace fuzz
