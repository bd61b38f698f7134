// A filter with a state, whatever its structure: set-up in memory of exactly the size that was told or by allocation,
// a stream in blocks, in place and by single samples, new taps and delay lines on the way, refused calls, release.
//
// A row has the types `state`, `tap`, `data` and `dly`, the counts of taps and of delay values of a filter of size n,
// and the calls.
#pragma once
#include "frame/variant_table.h"
#include "fuzz/refusals.h"

namespace fuzz {

template <class Row> class filter {
 public:
  using state = typename Row::state;
  using tap   = typename Row::tap;
  using data  = typename Row::data;
  using dly   = typename Row::dly;

  static constexpr bool takes_singles = !requires { Row::refuses_singles; };

  filter(const char* name, input& in) : name_(name), in_(in), n_(in.one_in(8) ? 1 + in.below(90) : 1 + in.below(12)) {
    const memory taps = drawn_taps(), line = drawn_line();
    const dly*   from = in.one_in(2) ? nullptr : at<dly>(line);
    if (in.one_in(2)) {
      alive_ = is_set_up(set_up(plainly{}, Row::init_alloc, &state_, taps, from));
    } else {
      memory_ = std::make_unique<memory>(in, size_of_state(), unset{});
      alive_  = is_set_up(set_up(plainly{}, Row::init, &state_, taps, from, memory_->data()));
    }
  }
  ~filter() {
    if (alive_ && Row::free(state_) != tavStatusOk) fail(name_, "a state is not released");
  }
  filter(const filter&)            = delete;
  filter& operator=(const filter&) = delete;

  bool   alive() const { return alive_; }
  state* get() const { return state_; }

  void step() {
    const int kind = in_.below(10);
    if (kind < 2) return block();
    if (kind < 4) return in_place();
    if (kind == 4) return both_ways();
    if (kind == 5) return one_by_one();
    if (kind == 6) return line();
    if (kind == 7) return taps();
    refusal();
  }

 private:
  memory drawn_taps() { return memory(in_, Row::tap_count(n_), tap{}); }
  memory drawn_line() { return memory(in_, Row::dly_count(n_), dly{}); }
  int    length() { return in_.one_in(16) ? 1 + in_.below(2500) : in_.length(); }

  size_t size_of_state() {
    int size = -1;
    if (Row::get_size(n_, &size) < 0 || size < 1) fail(name_, "no size");
    int any = -1;
    Row::get_size(in_.number(), &any);
    return size_t(size);
  }

  template <class Call, class F, class... M>
  TavStatus set_up(const Call& call, F* init, state** to, const memory& taps, const dly* from, M... mem) {
    if constexpr (std::is_invocable_v<F*, state**, const tap*, int, int, const dly*, M...>)
      return call(init, to, at<tap>(taps), n_, in_.number(), from, mem...);
    else
      return call(init, to, at<tap>(taps), n_, from, mem...);
  }
  // Taps that no filter can have are refused.
  bool is_set_up(TavStatus status) const {
    if (status < 0 && status != tavStatusDivideByZero) fail(name_, "no state");
    return status >= 0;
  }

  void block() {
    const int    len = in_.one_in(24) ? in_.refused_length() : length();
    const memory src(in_, size_t(std::max(len, 1)), data{}), dst(in_, size_t(std::max(len, 1)), data{});
    const auto   status = block(src, dst, len, in_.number());
    if ((status < 0) != (len < 1)) fail(name_, "the block has another status");
    if (!src.as_before()) fail(name_, "the source was written");
    if (status < 0 && !dst.as_before()) fail(name_, "an error, and something was written");
    dst.look();
  }
  TavStatus block(const memory& src, const memory& dst, int len, int scale) {
    return call_with(plainly{}, Row::block, scale, static_cast<const data*>(at<data>(src)), at<data>(dst), len, state_);
  }
  void in_place() {
    const int    len = length();
    const memory both(in_, size_t(len), data{});
    if (call_with(plainly{}, Row::in_place, in_.number(), at<data>(both), len, state_) < 0)
      fail(name_, "the block is refused");
    both.look();
  }
  // In place and apart the same comes out, bit for bit but for the bits of NaNs.
  void both_ways() {
    const int    len = length(), scale = in_.number();
    const memory src(in_, size_t(len), data{}), dst(in_, size_t(len), data{}), held = drawn_line();
    if (Row::get_dly(state_, at<dly>(held)) < 0) fail(name_, "no delay line");
    if (block(src, dst, len, scale) < 0) fail(name_, "the block is refused");
    if (Row::set_dly(state_, at<dly>(held)) < 0) fail(name_, "the delay line is refused");
    if (call_with(plainly{}, Row::in_place, scale, at<data>(src), len, state_) < 0) fail(name_, "the block is refused");
    if constexpr (requires { requires Row::differs_in_place; }) return;
    if (test::first_difference(src.template values<data>(), dst.template values<data>()) >= 0)
      fail(name_, "in place something else comes out");
  }
  void one_by_one() {
    for (int i = 1 + in_.below(20), scale = in_.number(); i > 0; --i) {
      const memory dst(in_, 1, data{});
      const auto   val = in_.data().template value<data>();
      if ((call_with(plainly{}, Row::one, scale, val, at<data>(dst), state_) < 0) != !takes_singles)
        fail(name_, "the sample has another status");
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
  void taps() {
    call_with(plainly{}, Row::set_taps, in_.number(), at<tap>(drawn_taps()), state_);  // may refuse them
    if constexpr (requires { Row::get_taps; }) {
      const memory factor(in_, 1, int{}, alignof(int));
      if (call_with(plainly{}, Row::get_taps, at<int>(factor), state_, at<tap>(drawn_taps())) < 0)
        fail(name_, "no taps");
    }
  }

  void refusal() {
    const int    len  = length();
    const memory taps = drawn_taps(), line = drawn_line(), src(in_, size_t(len), data{}), dst(in_, size_t(len), data{}),
                 number(in_, 1, int{}, alignof(int)), mem(in_, size_of_state(), Tav8u{});
    spoilt call{name_, in_, {&taps, &line, &src, &dst, &number, &mem}};
    if (memory_ && !unset_records) call.held.push_back(memory_.get());

    state*     other = nullptr;
    const int  scale = in_.number();
    data*      to    = at<data>(dst);
    const auto val   = in_.data().template value<data>();
    switch (in_.below(11)) {
      case 0:
        call(Row::get_size, n_, at<int>(number));
        return;
      case 1:
        if (set_up(call, Row::init_alloc, &other, taps, at<dly>(line)) >= 0) Row::free(other);
        return;
      case 2:
        set_up(call, Row::init, &other, taps, at<dly>(line), mem.data());
        return;
      case 3:
        call(Row::free, state_);
        return;
      case 4:
        call_with(call, Row::block, scale, static_cast<const data*>(at<data>(src)), to, len, state_);
        return;
      case 5:
        call_with(call, Row::in_place, scale, to, len, state_);
        return;
      case 6:
        call_with(call, Row::one, scale, val, to, state_);
        return;
      case 7:
        call_with(call, Row::set_taps, scale, at<tap>(taps), state_);
        return;
      case 8:
        call(Row::get_dly, state_, at<dly>(line));
        return;
      case 9:
        call(Row::set_dly, state_, at<dly>(line));
        return;
      default:
        if constexpr (requires { Row::get_taps; })
          call_with(call, Row::get_taps, at<int>(number), state_, at<tap>(taps));
    }
  }

  const char*             name_;
  input&                  in_;
  int                     n_;
  state*                  state_ = nullptr;
  std::unique_ptr<memory> memory_;
  bool                    alive_ = false;
};

template <class Row> void call_filter(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  filter<Row> f(name, in);
  for (int steps = in.below(6); f.alive() && steps > 0; --steps) f.step();
}

}  // namespace fuzz
