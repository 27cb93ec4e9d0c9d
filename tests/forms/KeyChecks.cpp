// The Tab order, and what Enter presses.

#include <QDialog>
#include <QPushButton>
#include <set>

#include "tests/forms/Checks.h"

namespace zg {

namespace {

std::vector<const QWidget*> ancestry(const QWidget& control) {
    std::vector<const QWidget*> chain;
    for (const QWidget* at = &control; at != nullptr; at = at->isWindow() ? nullptr : at->parentWidget())
        chain.insert(chain.begin(), at);
    return chain;
}

/// Whether the second is read before the first, line by line and from the left. A column on the right comes
/// after everything to its left.
bool isReadBefore(const QRect& second, const QRect& first) {
    const bool above = second.bottom() < first.top();
    const bool below = second.top() > first.bottom();
    if (above) return second.left() <= first.right();
    return !below && second.right() < first.left();
}

}  // namespace

Findings checkTabOrder(const QWidget& form) {
    Findings found;
    std::set<const QWidget*> left;
    const QWidget* before = nullptr;
    for (const QWidget* stop : tabStops(form)) {
        if (before != nullptr) {
            const auto from = ancestry(*before);
            const auto to = ancestry(*stop);
            std::size_t level = 0;
            while (level + 1 < std::min(from.size(), to.size()) && from[level] == to[level]) ++level;
            if (from[level] != to[level] && isReadBefore(to[level]->geometry(), from[level]->geometry()))
                found.push_back(finding(
                    *stop, "is read before " + finding(*before, "").control + " but Tab comes to it after"));
            for (std::size_t i = level; i < from.size(); ++i) left.insert(from[i]);
            for (std::size_t i = level; i < to.size(); ++i)
                if (left.contains(to[i]))
                    found.push_back(finding(*stop, "lies in a frame that Tab has been in before"));
        }
        before = stop;
    }
    return found;
}

Findings checkEnter(const QWidget& form) {
    Findings found;
    if (qobject_cast<const QDialog*>(&form) == nullptr) return found;
    const QPushButton* standard = defaultButton(form);
    if (standard == nullptr) found.push_back(finding(form, "has no default button"));
    for (QWidget* each : shownControls(form)) {
        const auto* button = qobject_cast<QPushButton*>(each);
        if (button != nullptr && button != standard && !button->autoDefault())
            found.push_back(finding(*button, "is not pressed by Enter while it has the focus"));
    }
    return found;
}

}  // namespace zg
