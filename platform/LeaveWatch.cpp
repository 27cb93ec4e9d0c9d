#include "platform/LeaveWatch.h"

#include "platform/Errors.h"
#include "platform/FieldMarks.h"

namespace zg {

void LeaveWatch::whenLeft(QWidget& field, std::function<void()> action) {
    actions_.emplace_back(&field, std::move(action));
    field.installEventFilter(this);
}

bool LeaveWatch::eventFilter(QObject* watched, QEvent* event) {
    if (leavesField(*event))
        for (const auto& [field, action] : actions_)
            if (field == watched) guarded(host_, action)();
    return false;
}

}  // namespace zg
