// Fills the tables of a complex transform: the stages', then the column passes', the longest first.
#include <initializer_list>

#include "transform/fft/first_pass.h"
#include "transform/fft/setup.h"

namespace tav::TAV_VARIANT::fft {
namespace {

template <class T> void put_stages(twiddle_writer<T>& writer, int order) {
  for (int span = first_levels(order) + 2; span <= order; span += 2)
    for (size_t k = 0; k < size_t(1) << (span - 2); k += lanes<T>)
      for (int power : {1, 3, 2}) writer.put(span, k, power);
}

template <class T> void put_columns(twiddle_writer<T>& writer, int order) {
  for (size_t k = 0; k < size_t(1) << (order - 4); k += lanes<T>)
    for (int power : {8, 4, 2, 1}) writer.put(order, k, power);
}

}  // namespace

template <class T> Tav8u* make_tables(fft_record<T>* r, int order, const quarter_wave<T>& wave, Tav8u* at) {
  twiddle_writer<T> writer(reinterpret_cast<T*>(at), wave);
  r->columns = writer.at();
  for (; order >= plan_of<T>.columns_from; order -= 4) put_columns(writer, order);
  r->stages = writer.at();
  put_stages(writer, order);
  return align_up(writer.at());
}

template Tav8u* make_tables(fft_record<Tav32f>*, int, const quarter_wave<Tav32f>&, Tav8u*);
template Tav8u* make_tables(fft_record<Tav64f>*, int, const quarter_wave<Tav64f>&, Tav8u*);

}  // namespace tav::TAV_VARIANT::fft
