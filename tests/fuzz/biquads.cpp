// Cascades of biquads.
#include <deque>

#include "filter/biquad_forms.h"
#include "fuzz/filters.h"

namespace fuzz {
namespace {

template <class F> struct biquad_row {
  using state                      = typename F::state;
  using tap                        = typename F::tap;
  using data                       = typename F::sample;
  using dly                        = test::delay_of<F>;
  static constexpr auto get_size   = F::get_size;
  static constexpr auto init       = F::init;
  static constexpr auto init_alloc = F::init_alloc;
  static constexpr auto set_taps   = F::set_taps;
  static constexpr auto free       = F::free;
  static constexpr auto block      = F::filter;
  static constexpr auto in_place   = F::filter_inplace;
  static constexpr auto one        = F::one;
  static constexpr auto get_dly    = F::get_delay;
  static constexpr auto set_dly    = F::set_delay;

  static size_t tap_count(int sections) { return 6 * size_t(sections); }
  static size_t dly_count(int sections) { return 2 * size_t(sections); }
};

// In direct form 1.
struct df1_32f : test::bq_32f {
  static constexpr auto get_size   = &tavsIIRGetStateSize_BiQuad_DF1_32f;
  static constexpr auto init       = &tavsIIRInit_BiQuad_DF1_32f;
  static constexpr auto init_alloc = &tavsIIRInitAlloc_BiQuad_DF1_32f;
};
struct df1_64f_32s : test::bq64f_32s {
  static constexpr auto get_size   = &tavsIIRGetStateSize64f_BiQuad_DF1_32s;
  static constexpr auto init       = &tavsIIRInit64f_BiQuad_DF1_32s;
  static constexpr auto init_alloc = &tavsIIRInitAlloc64f_BiQuad_DF1_32s;
  static constexpr auto get_delay  = &tavsIIRGetDlyLine64f_DF1_32s;
  static constexpr auto set_delay  = &tavsIIRSetDlyLine64f_DF1_32s;
};
template <class F> struct df1_row : biquad_row<F> {
  static constexpr bool refuses_singles = true;

  static size_t dly_count(int sections) { return 4 * size_t(sections); }
};

// Several channels. The states are of one kind, or now and then not, which is refused.
template <class Row, class OtherRow, auto* Apart, auto* InPlace>
void call_channels(const char* name, void (*)(), input& in) {
  using data                         = typename Row::data;
  tav::tav_variant_index             = uint32_t(in.below(2));
  const int                    count = 1 + in.below(5), len = in.length(), odd = in.one_in(8) ? in.below(count) : -1;
  std::deque<filter<Row>>      filters;
  std::deque<filter<OtherRow>> others;
  std::deque<memory>           sources, destinations;
  std::vector<typename Row::state*> states;
  std::vector<const data*>          from;
  std::vector<data*>                to;
  std::vector<int>                  scales;
  for (int i = 0; i < count; ++i) {
    if (i == odd)
      states.push_back(others.emplace_back(name, in).get());
    else
      states.push_back(filters.emplace_back(name, in).get());
    from.push_back(at<data>(sources.emplace_back(in, size_t(len), data{})));
    to.push_back(at<data>(destinations.emplace_back(in, size_t(len), data{})));
    scales.push_back(in.number());
  }
  if (std::find(states.begin(), states.end(), nullptr) != states.end()) return;  // taps that no filter can have

  spoilt refusal{name, in, {}};
  for (const auto* all : {&sources, &destinations})
    for (const memory& m : *all) refusal.held.push_back(&m);
  const auto run = [&](const auto& call) {
    if (in.one_in(2)) return call_with(call, Apart, scales.data(), from.data(), to.data(), len, count, states.data());
    return call_with(call, InPlace, scales.data(), to.data(), len, count, states.data());
  };
  const bool is_refused = odd >= 0 && count > 1;
  if (in.one_in(4)) {
    if (in.one_in(2)) to[size_t(in.below(count))] = nullptr;
    run(refusal);
  } else if ((run(plainly{}) < 0) != is_refused) {
    fail(name, "the call has another status");
  }
  if (!std::all_of(sources.begin(), sources.end(), [](const memory& m) { return m.as_before(); }))
    fail(name, "a source was written");
}

}  // namespace

void add_biquad_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(name) {#name, nullptr, &call_filter<biquad_row<name>>}
  rows.insert(rows.end(), {TAV_ROW(bq_32f), TAV_ROW(bq_32fc), TAV_ROW(bq_64f), TAV_ROW(bq_64fc), TAV_ROW(bq64f_32f),
                           TAV_ROW(bq64fc_32fc), TAV_ROW(bq32f_16s), TAV_ROW(bq32fc_16sc), TAV_ROW(bq64f_16s),
                           TAV_ROW(bq64fc_16sc), TAV_ROW(bq64f_32s), TAV_ROW(bq64fc_32sc), TAV_ROW(bq32s_16s),
                           TAV_ROW(bq32sc_16sc), TAV_ROW(bq32s_16s32f), TAV_ROW(bq32sc_16sc32fc)});
#undef TAV_ROW
#define TAV_ROW(name) {#name, nullptr, &call_filter<df1_row<name>>}
  rows.insert(rows.end(), {TAV_ROW(df1_32f), TAV_ROW(df1_64f_32s)});
#undef TAV_ROW
#define TAV_ROW(name, kind, other, apart, in_place) {#name, nullptr, &call_channels<kind, other, &apart, &in_place>}
  rows.insert(rows.end(),
              {TAV_ROW(channels_32f, biquad_row<bq_32f>, df1_row<df1_32f>, tavsIIR_32f_P, tavsIIR_32f_IP),
               TAV_ROW(df1_channels_32f, df1_row<df1_32f>, biquad_row<bq_32f>, tavsIIR_32f_P, tavsIIR_32f_IP),
               TAV_ROW(channels_64f_32s, biquad_row<bq64f_32s>, df1_row<df1_64f_32s>, tavsIIR64f_32s_PSfs,
                       tavsIIR64f_32s_IPSfs),
               TAV_ROW(df1_channels_64f_32s, df1_row<df1_64f_32s>, biquad_row<bq64f_32s>, tavsIIR64f_32s_PSfs,
                       tavsIIR64f_32s_IPSfs)});
#undef TAV_ROW
}

}  // namespace fuzz
