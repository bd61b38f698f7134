// Fills the tables of a record: the complex transform's, first the column passes', the longest first, then the stages',
// and the recombination of a real transform.
#include <initializer_list>

#include "transform/fft/first_pass.h"
#include "transform/fft/recombination.h"
#include "transform/fft/setup.h"

namespace tav::TAV_VARIANT::fft {
namespace {

// The quarter wave that serves a transform of this order: constant, or made in the caller's set-up area.
template <class T> TavStatus make_wave(int order, Tav8u* init, quarter_wave<T>* wave) {
  if (order <= constant_wave_order) {
    *wave = {constant_wave<T>(), constant_wave_order};
    return tavStatusOk;
  }
  if (!init) return tavStatusNullPointer;
  T* const table = reinterpret_cast<T*>(align_up(init));
  fill_quarter_wave(table, order);
  *wave = {table, order};
  return tavStatusOk;
}

template <class T> void put_stages(twiddle_writer<T>& writer, int order) {
  for (int span = first_levels<T>(order) + 2; span <= order; span += 2)
    for (size_t k = 0; k < size_t(1) << (span - 2); k += lanes<T>)
      for (int power : {1, 3, 2}) writer.put(span, k, power);
}

template <class T> void put_columns(twiddle_writer<T>& writer, int order) {
  for (size_t k = 0; k < size_t(1) << (order - 4); k += lanes<T>)
    for (int power : {8, 4, 2, 1}) writer.put(order, k, power);
}

// The tables of a complex transform of 2^order points, of order 6 at least. Returns the 64-byte boundary behind them.
template <class T> Tav8u* make_tables(fft_record<T>* r, int order, const quarter_wave<T>& wave, Tav8u* at) {
  twiddle_writer<T> writer(reinterpret_cast<T*>(at), wave);
  r->columns = writer.at();
  for (; order >= plan_of<T>.columns_from; order -= 4) put_columns(writer, order);
  r->stages = writer.at();
  put_stages(writer, order);
  return align_up(writer.at());
}

// For either direction a table of all bins up to a quarter of the length, or one of the first bins, and behind the
// inverse one the factors that lead on from there.
template <class T> void make_recombination(fft_record<T>* r, const quarter_wave<T>& wave, Tav8u* at) {
  const int         order   = r->order;
  const size_t      bins    = size_t(1) << (order - 2);
  const bool        factors = order >= plan_of<T>.factors_from;
  const size_t      listed  = factors ? fine_bins<T> : bins;
  twiddle_writer<T> writer(reinterpret_cast<T*>(at), wave);
  r->real_forward = writer.at();
  for (size_t k = 1; k <= listed; k += lanes<T>) writer.put_forward(order, k, factors ? T(0) : T(0.5));
  r->real_inverse = writer.at();
  for (size_t k = 1; k <= listed; k += lanes<T>) writer.put_inverse(order, k);
  if (!factors) return;
  for (size_t k = 0; k < bins; k += listed) writer.put_one(order, k);
}

}  // namespace

template <class T> TavStatus fill_complex(fft_record<T>* r, Tav8u* init) {
  if (r->order <= direct_to) return tavStatusOk;
  quarter_wave<T> wave;
  if (const TavStatus bad = make_wave(r->order, init, &wave)) return bad;
  r->buf_size = int(complex_share<T>(r->order).work);
  make_tables(r, r->order, wave, reinterpret_cast<Tav8u*>(r) + record_head);
  return tavStatusOk;
}

template <class T> TavStatus fill_real(fft_record<T>* r, Tav8u* init) {
  if (r->order <= real_direct_to<T>) return tavStatusOk;
  quarter_wave<T> wave;
  if (const TavStatus bad = make_wave(r->order, init, &wave)) return bad;
  r->buf_size     = int(real_share<T>(r->order).work);
  Tav8u*    at    = reinterpret_cast<Tav8u*>(r) + record_head;
  const int inner = r->order - 1;
  if (inner > direct_to) at = make_tables(r, inner, wave, at);
  make_recombination(r, wave, at);
  return tavStatusOk;
}

TAV_FFT_TABLES(, Tav32f)
TAV_FFT_TABLES(, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
