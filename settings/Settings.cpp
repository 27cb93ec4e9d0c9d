#include "settings/Settings.h"

namespace zg {

Settings settings;

}  // namespace zg
