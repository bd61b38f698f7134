// The comparison sorts that are built for each variant.
#include "stats/sort/bytes.h"
#include "stats/sort/forms.h"

namespace tav::TAV_VARIANT {

TAV_BIND(SortAscend_8u_I, &sorted_bytes<sort_order::ascending>)
TAV_BIND(SortIndexDescend_32f_I, &sorted_with_index<Tav32f, sort_order::descending>)

}  // namespace tav::TAV_VARIANT
