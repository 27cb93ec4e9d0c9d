#include "platform/Combos.h"

#include "platform/QtText.h"
#include "processing/Zones.h"

namespace zg {

void FillTimeZones(QComboBox& combo) {
    LoadTimeZones();
    for (const std::string& label : timeZones.gsTimeZoneLabels) combo.addItem(shown(label));
}

}  // namespace zg
