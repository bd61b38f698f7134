// Filters without a state: the delay line, and for FIR filters the place in it, are the caller's.
#include "filter/fir_direct_calls.h"
#include "frame/variant_table.h"
#include "fuzz/refusals.h"

namespace fuzz {
namespace {

// The delay line of FIR filters is a ring with each value twice.
template <class F> struct ring : F {
  using tap = typename F::taps;
  using dly = typename F::data;

  static size_t tap_count(int n) { return size_t(n); }
  static size_t dly_count(int n, int) { return 2 * size_t(n); }
  static bool   accepts(const tap*, int) { return true; }
};

// But with taps of 16 bits the blocks have one that begins at the index, the newest sample first.
struct words {
  using data = Tav16s;
  using taps = Tav16s;
};
template <class Row> inline constexpr bool tests_index = std::is_base_of_v<words, Row>;

struct single_words : ring<words> {
  static constexpr auto* one          = &tavsFIROne_Direct_16s_Sfs;
  static constexpr auto* one_in_place = &tavsFIROne_Direct_16s_ISfs;
};
struct blocks_of_words : ring<words> {
  static constexpr auto* block    = &tavsFIR_Direct_16s_Sfs;
  static constexpr auto* in_place = &tavsFIR_Direct_16s_ISfs;

  static size_t dly_count(int n, int index) { return size_t(index) + size_t(n); }
};

// Exponents among the taps must not be negative. A cascade that meets one may have changed the delay line by then.
struct iir_direct {
  using data                          = Tav16s;
  using tap                           = Tav16s;
  using dly                           = Tav32s;
  static constexpr auto* block        = &tavsIIR_Direct_16s;
  static constexpr auto* in_place     = &tavsIIR_Direct_16s_I;
  static constexpr auto* one          = &tavsIIROne_Direct_16s;
  static constexpr auto* one_in_place = &tavsIIROne_Direct_16s_I;

  static size_t tap_count(int order) { return 2 * size_t(order) + 2; }
  static size_t dly_count(int order, int) { return size_t(order); }
  static bool   accepts(const tap* taps, int order) { return exponent(taps + order + 1) >= 0; }

  static int exponent(const tap* place) {
    tap e;
    memcpy(&e, place, sizeof e);
    return e;
  }
};
struct biquads_direct : iir_direct {
  static constexpr auto* block        = &tavsIIR_BiQuadDirect_16s;
  static constexpr auto* in_place     = &tavsIIR_BiQuadDirect_16s_I;
  static constexpr auto* one          = &tavsIIROne_BiQuadDirect_16s;
  static constexpr auto* one_in_place = &tavsIIROne_BiQuadDirect_16s_I;

  static size_t tap_count(int sections) { return 6 * size_t(sections); }
  static size_t dly_count(int sections, int) { return 2 * size_t(sections); }
  static bool   accepts(const tap* taps, int sections) {
      for (int i = 0; i < sections; ++i)
      if (exponent(taps + 6 * i + 3) < 0) return false;
    return true;
  }
};

template <class Row> class direct_filter {
 public:
  using tap  = typename Row::tap;
  using data = typename Row::data;
  using dly  = typename Row::dly;

  static constexpr bool has_singles = requires { Row::one; };

  direct_filter(const char* name, input& in)
      : name_(name),
        in_(in),
        n_(in.one_in(8) ? 1 + in.below(90) : 1 + in.below(12)),
        index_(in.below(n_)),
        taps_(in, Row::tap_count(n_), tap{}),
        line_(in, Row::dly_count(n_, index_), dly{}) {
    // exponents that only now and then are refused, or shift everything out
    if constexpr (std::is_base_of_v<iir_direct, Row>)
      for (size_t i = 0; i < taps_.size() / sizeof(tap); ++i)
        if (in.one_in(2)) taps_.data()[i * sizeof(tap) + 1] = 0;
    taps_.keep();
  }

  void step() {
    const int    len = in_.one_in(16) ? 1 + in_.below(2500) : in_.length();
    const memory src(in_, size_t(len), data{}), dst(in_, size_t(len), data{});
    line_.keep();
    if (in_.one_in(4)) {
      refusal(src, dst, len);
    } else {
      const bool done = filter(plainly{}, in_.below(4), src, dst, len) >= 0;
      if (done != Row::accepts(at<tap>(taps_), n_)) fail(name_, "the call has another status");
    }
    if (!src.as_before() || !taps_.as_before()) fail(name_, "a source was written");
    if (index_ < 0 || index_ >= n_) fail(name_, "the place in the delay line has left it");
    dst.look(), line_.look();
  }

 private:
  void refusal(const memory& src, const memory& dst, int len) {
    spoilt     call{name_, in_, {&taps_, &src, &dst}};
    const bool changes_line = !Row::accepts(at<tap>(taps_), n_);
    if (!changes_line) call.held.push_back(&line_);
    const int before = index_, how = in_.below(4);
    if (tests_index<Row> && in_.one_in(4)) index_ = in_.one_in(2) ? -1 : n_;
    const bool misplaced = index_ != before;
    if (filter(call, how, src, dst, len) < 0 || misplaced) index_ = before;
  }

  // A block, or one sample of it, out of place or in place.
  template <class Call> TavStatus filter(const Call& call, int how, const memory& src, const memory& dst, int len) {
    const auto* from = at<const data>(src);
    auto*       to   = at<data>(dst);
    if constexpr (requires { Row::block; }) {
      if (how == 0) return with_line(call, Row::block, from, to, len);
      if (how == 1 || !has_singles) return with_line(call, Row::in_place, to, len);
    }
    if constexpr (has_singles) {
      if (how % 2 == 0) return with_line(call, Row::one, in_.data().template value<data>(), to);
      return with_line(call, Row::one_in_place, to);
    }
    return tavStatusOk;
  }

  template <class Call, class F, class... A> TavStatus with_line(const Call& call, F* f, A... first) {
    const tap* h = at<tap>(taps_);
    auto*      d = at<dly>(line_);
    if constexpr (std::is_invocable_v<F*, A..., const tap*, int, dly*>)
      return call(f, first..., h, n_, d);
    else if constexpr (std::is_invocable_v<F*, A..., const tap*, int, int, dly*, int*, int>)
      return call(f, first..., h, n_, in_.number(), d, &index_, in_.number());
    else
      return call_with(call, f, in_.number(), first..., h, n_, d, &index_);
  }

  const char* name_;
  input&      in_;
  int         n_, index_;
  memory      taps_, line_;
};

template <class Row> void call_direct(const char* name, void (*)(), input& in) {
  tav::tav_variant_index = uint32_t(in.below(2));
  direct_filter<Row> f(name, in);
  for (int steps = 1 + in.below(4); steps > 0; --steps) f.step();
}

}  // namespace

void add_direct_rows(std::vector<row>& rows) {
  using namespace test::direct;
#define TAV_ROW(name) {#name, nullptr, &call_direct<name>}
  rows.insert(rows.end(),
              {TAV_ROW(ring<direct_32f>), TAV_ROW(ring<direct_32fc>), TAV_ROW(ring<direct_64f>),
               TAV_ROW(ring<direct_64fc>), TAV_ROW(ring<direct_64f_32f>), TAV_ROW(ring<direct_64fc_32fc>),
               TAV_ROW(ring<direct_32f_16s>), TAV_ROW(ring<direct_32fc_16sc>), TAV_ROW(ring<direct_64f_16s>),
               TAV_ROW(ring<direct_64fc_16sc>), TAV_ROW(ring<direct_64f_32s>), TAV_ROW(ring<direct_64fc_32sc>),
               TAV_ROW(ring<direct_32s_16s>), TAV_ROW(ring<direct_32sc_16sc>), TAV_ROW(single_words),
               TAV_ROW(blocks_of_words), TAV_ROW(iir_direct), TAV_ROW(biquads_direct)});
#undef TAV_ROW
}

}  // namespace fuzz
