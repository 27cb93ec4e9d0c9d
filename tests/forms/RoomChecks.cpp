// Whether there is room for the texts.

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTreeView>

#include "base/Paths.h"
#include "tests/forms/Checks.h"

namespace zg {

namespace {

/// A screen of 1366 by 768 without a window frame and a panel.
constexpr QSize smallScreen(1350, 700);

std::string shortBy(const char* what, int has, int needs) {
    return std::string(what) + " is " + std::to_string(has) + " and should be " + std::to_string(needs);
}

void needWidth(Findings& found, const QWidget& control, int has, int needs) {
    if (has < needs) found.push_back(finding(control, shortBy("the width", has, needs)));
}

void needHeight(Findings& found, const QWidget& control, int has, int needs) {
    if (has < needs) found.push_back(finding(control, shortBy("the height", has, needs)));
}

void checkLabel(Findings& found, const QLabel& label) {
    if (label.text().isEmpty()) return;
    if (label.wordWrap()) {
        needHeight(found, label, label.height(), label.heightForWidth(label.width()));
        return;
    }
    needWidth(found, label, label.width(), label.sizeHint().width());
    needHeight(found, label, label.height(), label.sizeHint().height());
}

/// A button with a short caption may be narrower than the style's default.
void checkButton(Findings& found, const QPushButton& button) {
    if (button.text().isEmpty()) return;
    const int text = button.fontMetrics().horizontalAdvance(plainText(button.text())) + 12;
    needWidth(found, button, button.width(), std::min(text, button.sizeHint().width()));
    needHeight(found, button, button.height(), button.sizeHint().height());
}

void checkCombo(Findings& found, const QComboBox& list) {
    needHeight(found, list, list.height(), list.sizeHint().height());
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    const int room = list.style()
                         ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
                         .width();
    if (list.isEditable()) return;
    int widest = 0;
    for (int row = 0; row < list.count(); ++row) {
        const int icon = list.itemIcon(row).isNull() ? 0 : list.iconSize().width() + 4;
        widest = std::max(widest, icon + list.fontMetrics().horizontalAdvance(list.itemText(row)));
    }
    needWidth(found, list, room, widest);
}

void checkBox(Findings& found, const QLineEdit& box) {
    needHeight(found, box, box.height(), box.sizeHint().height());
    const int margins = box.width() - box.contentsRect().width() + 8;
    needWidth(found, box, box.width(),
              margins + box.fontMetrics().horizontalAdvance(QStringLiteral("000000")));
    const bool path = box.text().contains(QLatin1Char(pathSeparator));
    if (!path) needWidth(found, box, box.width(), margins + box.fontMetrics().horizontalAdvance(box.text()));
}

void checkTree(Findings& found, const QTreeView& tree) {
    const QHeaderView& header = *tree.header();
    for (int i = 0; i < header.count() && !header.isHidden(); ++i) {
        const QString title = tree.model()->headerData(i, Qt::Horizontal).toString();
        if (!header.isSectionHidden(i))
            needWidth(found, tree, header.sectionSize(i), tree.fontMetrics().horizontalAdvance(title) + 8);
    }
}

void checkSize(Findings& found, const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) return checkLabel(found, *label);
    if (const auto* list = qobject_cast<const QComboBox*>(&control)) return checkCombo(found, *list);
    if (const auto* box = qobject_cast<const QLineEdit*>(&control)) return checkBox(found, *box);
    if (const auto* tree = qobject_cast<const QTreeView*>(&control)) return checkTree(found, *tree);
    if (const auto* rows = qobject_cast<const QListWidget*>(&control)) {
        if (rows->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
            needWidth(found, control, rows->viewport()->width(), rows->sizeHintForColumn(0));
        return needHeight(found, control, rows->viewport()->height(), 3 * control.fontMetrics().height());
    }
    if (qobject_cast<const QGroupBox*>(&control) != nullptr)
        return needWidth(found, control, control.width(), control.minimumSizeHint().width());
    if (const auto* button = qobject_cast<const QPushButton*>(&control)) return checkButton(found, *button);
    const bool hasText = !captionOf(control).isEmpty() || control.inherits("QAbstractSpinBox") ||
                         control.inherits("QTabBar") || control.inherits("QMenuBar");
    if (!hasText) return;
    needWidth(found, control, control.width(), control.sizeHint().width());
    needHeight(found, control, control.height(), control.sizeHint().height());
}

void checkPlaces(Findings& found, const QWidget& control) {
    const QWidget& holder = *control.parentWidget();
    if (!holder.rect().contains(control.geometry())) found.push_back(finding(control, "sticks out"));
    for (QWidget* other : holder.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (other > &control && other->isVisible() && !other->isWindow() &&
            other->geometry().intersects(control.geometry()))
            found.push_back(finding(control, "overlaps " + finding(*other, "").control));
}

}  // namespace

Findings checkRoom(const QWidget& form) {
    Findings found;
    for (const QWidget* each : shownControls(form)) {
        checkSize(found, *each);
        if (each->parentWidget()->inherits("QTabWidget") ||
            each->parentWidget()->inherits("QStackedWidget") || each->inherits("QSizeGrip"))
            continue;
        checkPlaces(found, *each);
    }
    const QSize least = form.minimumSizeHint().expandedTo(form.minimumSize());
    needWidth(found, form, smallScreen.width(), std::max(form.width(), least.width()));
    needHeight(found, form, smallScreen.height(), least.height());
    return found;
}

}  // namespace zg
