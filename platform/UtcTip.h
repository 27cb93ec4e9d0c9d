#pragma once

#include <QComboBox>
#include <QDateEdit>
#include <QTimeEdit>

namespace zg {

/// The pickers of a period and the combo box of its time zone, whose rows are those of the table of time
/// zones.
struct PeriodPickers {
    QDateEdit* beginDate;
    QTimeEdit* beginTime;
    QDateEdit* endDate;
    QTimeEdit* endTime;
    QComboBox* timeZone;
};

/// Whether a choice of zone moves the period in the pickers.
enum class ZoneChoice { Relabels, MovesPeriod };

/// From now on the tool tip of each picker says the period in UTC, as the processor will read it; where the
/// choice of a zone moves the period by other hours than that zone's, it says that too.
void showUtcInTips(const PeriodPickers& pickers, ZoneChoice choice);

}  // namespace zg
