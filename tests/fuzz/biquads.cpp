// Cascades of biquads.
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

}  // namespace

void add_biquad_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(name) rows.push_back({#name, nullptr, &call_filter<biquad_row<name>>});
  TAV_ROW(bq_32f)
  TAV_ROW(bq_32fc) TAV_ROW(bq_64f) TAV_ROW(bq_64fc) TAV_ROW(bq64f_32f) TAV_ROW(bq64fc_32fc) TAV_ROW(bq32f_16s)
      TAV_ROW(bq32fc_16sc) TAV_ROW(bq64f_16s) TAV_ROW(bq64fc_16sc) TAV_ROW(bq64f_32s) TAV_ROW(bq64fc_32sc)
          TAV_ROW(bq32s_16s) TAV_ROW(bq32sc_16sc) TAV_ROW(bq32s_16s32f) TAV_ROW(bq32sc_16sc32fc)
#undef TAV_ROW
}

}  // namespace fuzz
