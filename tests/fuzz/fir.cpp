// FIR filters with a state.
#include "filter/fir_calls.h"
#include "filter/fir_integer_calls.h"
#include "fuzz/filters.h"

namespace fuzz {
namespace {

template <class F, class Taps = F> struct fir_row {
  using state                       = typename F::state;
  using tap                         = typename Taps::taps;
  using data                        = typename F::data;
  using dly                         = data;
  static constexpr auto* get_size   = Taps::get_size;
  static constexpr auto* init       = Taps::init;
  static constexpr auto* init_alloc = Taps::init_alloc;
  static constexpr auto* set_taps   = Taps::set_taps;
  static constexpr auto* get_taps   = Taps::get_taps;
  static constexpr auto* free       = F::free;
  static constexpr auto* block      = F::block;
  static constexpr auto* in_place   = F::in_place;
  static constexpr auto* one        = F::one;
  static constexpr auto* get_dly    = F::get_dly;
  static constexpr auto* set_dly    = F::set_dly;

  // Blocks of floats that are filtered apart go through transforms where those in place do not.
  static constexpr bool differs_in_place =
      std::is_same_v<tap, data> && std::is_floating_point_v<test::part_of<data>>;

  static size_t tap_count(int n) { return size_t(n); }
  static size_t dly_count(int n) { return size_t(n); }
};

}  // namespace

void add_fir_rows(std::vector<row>& rows) {
  using namespace test;
#define TAV_ROW(...) {#__VA_ARGS__, nullptr, &call_filter<fir_row<__VA_ARGS__>>}
  rows.insert(rows.end(), {TAV_ROW(fir_32f), TAV_ROW(fir_32fc), TAV_ROW(fir_64f), TAV_ROW(fir_64fc),
                           TAV_ROW(fir_64f_32f), TAV_ROW(fir_64fc_32fc), TAV_ROW(fir_32f_16s), TAV_ROW(fir_32fc_16sc),
                           TAV_ROW(fir_64f_32s), TAV_ROW(fir_32s), TAV_ROW(fir_64f_16s), TAV_ROW(fir_64fc_32sc),
                           TAV_ROW(fir_64fc_16sc), TAV_ROW(words::fir_16s), TAV_ROW(words::fir_32s_16s),
                           TAV_ROW(words::fir_32sc_16sc), TAV_ROW(words::fir_32s_16s, words::fir_32s_16s32f),
                           TAV_ROW(words::fir_32sc_16sc, words::fir_32sc_16sc32fc)});
#undef TAV_ROW
}

}  // namespace fuzz
