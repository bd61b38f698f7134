// tavsSortAscend, tavsSortDescend and their forms with an index, but for those that are built for each variant.
#include "stats/sort/bytes.h"
#include "stats/sort/forms.h"

namespace tav::TAV_VARIANT {

TAV_BIND(SortAscend_16s_I, &sorted<Tav16s, sort_order::ascending>)
TAV_BIND(SortAscend_16u_I, &sorted<Tav16u, sort_order::ascending>)
TAV_BIND(SortAscend_32s_I, &sorted<Tav32s, sort_order::ascending>)
TAV_BIND(SortAscend_32f_I, &sorted<Tav32f, sort_order::ascending>)
TAV_BIND(SortAscend_64f_I, &sorted<Tav64f, sort_order::ascending>)

TAV_BIND(SortDescend_8u_I, &sorted_bytes<sort_order::descending>)
TAV_BIND(SortDescend_16s_I, &sorted<Tav16s, sort_order::descending>)
TAV_BIND(SortDescend_16u_I, &sorted<Tav16u, sort_order::descending>)
TAV_BIND(SortDescend_32s_I, &sorted<Tav32s, sort_order::descending>)
TAV_BIND(SortDescend_32f_I, &sorted<Tav32f, sort_order::descending>)
TAV_BIND(SortDescend_64f_I, &sorted<Tav64f, sort_order::descending>)

TAV_BIND(SortIndexAscend_8u_I, &sorted_with_index<Tav8u, sort_order::ascending>)
TAV_BIND(SortIndexAscend_16s_I, &sorted_with_index<Tav16s, sort_order::ascending>)
TAV_BIND(SortIndexAscend_16u_I, &sorted_with_index<Tav16u, sort_order::ascending>)
TAV_BIND(SortIndexAscend_32s_I, &sorted_with_index<Tav32s, sort_order::ascending>)
TAV_BIND(SortIndexAscend_32f_I, &sorted_with_index<Tav32f, sort_order::ascending>)
TAV_BIND(SortIndexAscend_64f_I, &sorted_with_index<Tav64f, sort_order::ascending>)

TAV_BIND(SortIndexDescend_8u_I, &sorted_with_index<Tav8u, sort_order::descending>)
TAV_BIND(SortIndexDescend_16s_I, &sorted_with_index<Tav16s, sort_order::descending>)
TAV_BIND(SortIndexDescend_16u_I, &sorted_with_index<Tav16u, sort_order::descending>)
TAV_BIND(SortIndexDescend_32s_I, &sorted_with_index<Tav32s, sort_order::descending>)
TAV_BIND(SortIndexDescend_64f_I, &sorted_with_index<Tav64f, sort_order::descending>)

}  // namespace tav::TAV_VARIANT
