#include "platform/Combos.h"

#include "headers/Zones.h"
#include "platform/QtText.h"

namespace zg {

void FillTimeZones(QComboBox& combo) {
    LoadTimeZones();
    for (const std::string& label : timeZones.gsTimeZoneLabels) combo.addItem(shown(label));
}

}  // namespace zg
