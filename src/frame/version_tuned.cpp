// tavsGetLibVersion: one constant record per variant.
#include "frame/bind.h"
#include "frame/tuning.h"

namespace tav::TAV_VARIANT {

static constexpr TavLibVersion version = {
    .major      = 8,
    .minor      = 1,
    .majorBuild = 0,
    .build      = 41664,
    .targetCode = {tune.target_code[0], tune.target_code[1], tune.target_code[2], tune.target_code[3]},
    .name       = tune.label,
    .version    = "8.1.0 (r41664)",
    .buildDate  = "Jan 15 2014",
};

static const TavLibVersion* lib_version() { return &version; }

TAV_BIND(GetLibVersion, &lib_version)

}  // namespace tav::TAV_VARIANT
