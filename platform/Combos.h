#pragma once

#include <QComboBox>

namespace zg {

/// Adds the labels of all time zones to the box, in the order of their table, which is read at first use.
/// Raises the errors of a missing or invalid table.
void FillTimeZones(QComboBox& combo);

}  // namespace zg
