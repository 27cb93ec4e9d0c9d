// Names, accelerators and tool tips.

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <map>
#include <set>

#include "tests/forms/Checks.h"

namespace zg {

namespace {

/// A drop-down list reports its current row as its name, so its label has to name it.
QString spokenName(QWidget& control) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&control);
    if (interface == nullptr) return {};
    if (!control.inherits("QComboBox")) return interface->text(QAccessible::Name).trimmed();
    QStringList names;
    for (const auto& [label, relation] : interface->relations(QAccessible::Label))
        names.append(label->text(QAccessible::Name));
    return names.join(QLatin1String(", ")).trimmed();
}

bool hasWord(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar each) { return each.isLetterOrNumber(); });
}

const QGroupBox* frameOf(const QWidget& control) {
    const QWidget* at = control.parentWidget();
    while (at != nullptr && qobject_cast<const QGroupBox*>(at) == nullptr) at = at->parentWidget();
    return static_cast<const QGroupBox*>(at);
}

using Keys = std::map<std::string, std::vector<Finding>>;

/// A button may have a shortcut instead of a letter of its caption.
QKeySequence keyOf(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->shortcut();
    return QKeySequence::mnemonic(captionOf(control));
}

void addKey(Keys& keys, const QKeySequence& of, const QString& caption, const QWidget& control) {
    const QString key = of.toString();
    if (!key.isEmpty()) keys[key.toStdString()].push_back(finding(control, caption.toStdString()));
}

/// Only one step of a wizard is active at a time: the shortcuts of the others do nothing.
bool isOfIdleStep(const QWidget& control) {
    if (control.isEnabled()) return false;
    const QGroupBox* frame = frameOf(control);
    while (frame != nullptr && !frame->objectName().startsWith(QLatin1String("Frame_Step")))
        frame = frameOf(*frame);
    return frame != nullptr;
}

Keys acceleratorsOf(const QWidget& form) {
    Keys keys;
    for (QWidget* each : shownControls(form)) {
        if (isOfIdleStep(*each)) continue;
        const auto* label = qobject_cast<QLabel*>(each);
        if (label == nullptr || label->buddy() != nullptr)
            addKey(keys, keyOf(*each), captionOf(*each), *each);
        if (const auto* tabs = qobject_cast<QTabWidget*>(each))
            for (int i = 0; i < tabs->count(); ++i)
                addKey(keys, QKeySequence::mnemonic(tabs->tabText(i)), tabs->tabText(i), *each);
        if (const auto* bar = qobject_cast<QMenuBar*>(each))
            for (const QAction* menu : bar->actions())
                if (menu->isVisible())
                    addKey(keys, QKeySequence::mnemonic(menu->text()), menu->text(), *each);
    }
    return keys;
}

bool hasKey(const QString& caption) { return !QKeySequence::mnemonic(caption).isEmpty(); }

/// Labels and frames whose accelerator moves the focus to these controls.
std::set<const QWidget*> reachedByLabels(const QWidget& form) {
    std::set<const QWidget*> reached;
    for (QWidget* each : shownControls(form))
        if (const auto* label = qobject_cast<QLabel*>(each); label != nullptr && hasKey(label->text()))
            reached.insert(label->buddy());
    std::set<const QGroupBox*> entered;
    for (QWidget* stop : tabStops(form)) {
        const QGroupBox* frame = frameOf(*stop);
        if (frame != nullptr && entered.insert(frame).second && hasKey(frame->title())) reached.insert(stop);
    }
    return reached;
}

bool isPressedByEnterOrEscape(const QWidget& control) {
    const auto* button = qobject_cast<const QPushButton*>(&control);
    if (button == nullptr || qobject_cast<const QDialog*>(control.window()) == nullptr) return false;
    const QString caption = plainText(button->text());
    return button == defaultButton(*control.window()) || caption == QLatin1String("OK") ||
           caption == QLatin1String("Cancel") || caption == QLatin1String("Exit");
}

}  // namespace

Findings checkNames(const QWidget& form) {
    Findings found;
    std::map<std::pair<const QGroupBox*, QString>, const QWidget*> known;
    for (QWidget* stop : tabStops(form)) {
        if (stop->inherits("QTabBar")) continue;  // its tabs announce their texts
        const QString name = spokenName(*stop);
        if (!hasWord(name))
            found.push_back(finding(*stop, "has no name for screen readers"));
        else if (name.contains(QLatin1Char('&')))
            found.push_back(finding(*stop, "has an accelerator in its spoken name: " + name.toStdString()));
        else if (const auto [at, fresh] = known.emplace(std::pair(frameOf(*stop), name), stop); !fresh)
            found.push_back(finding(*stop, "has the same spoken name as " + finding(*at->second, "").control +
                                               ": " + name.toStdString()));
    }
    return found;
}

Findings checkAccelerators(const QWidget& form) {
    Findings found;
    for (const auto& [key, holders] : acceleratorsOf(form))
        for (std::size_t i = 1; i < holders.size(); ++i)
            found.push_back({holders[i].control, key + " is already that of " + holders[0].control + ": " +
                                                     holders[0].fault + " / " + holders[i].fault});
    const std::set<const QWidget*> reached = reachedByLabels(form);
    for (QWidget* stop : tabStops(form)) {
        if (stop->inherits("QTabBar") || reached.contains(stop) || !keyOf(*stop).isEmpty()) continue;
        if (!isPressedByEnterOrEscape(*stop)) found.push_back(finding(*stop, "has no accelerator"));
    }
    for (QWidget* each : shownControls(form)) {
        const auto* label = qobject_cast<QLabel*>(each);
        if (label == nullptr || label->buddy() != nullptr) continue;
        const QString text = plainText(label->text());
        if (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1Char('=')))
            found.push_back(finding(*label, "is a label of no control"));
    }
    return found;
}

Findings checkLabelKeys(QWidget& form) {
    Findings found;
    for (QWidget* each : shownControls(form)) {
        const auto* label = qobject_cast<QLabel*>(each);
        QWidget* buddy = label == nullptr ? nullptr : label->buddy();
        const bool pressed = qobject_cast<QAbstractButton*>(buddy) != nullptr;
        if (buddy == nullptr || !buddy->isEnabled() || pressed || !hasKey(label->text())) continue;
        if (QWidget* focused = form.focusWidget()) focused->clearFocus();
        const auto letter = static_cast<Qt::Key>(QKeySequence::mnemonic(label->text())[0].key());
        QTest::keyClick(&form, letter, Qt::AltModifier);
        if (!buddy->hasFocus()) found.push_back(finding(*label, "does not take the keyboard to its control"));
    }
    return found;
}

Findings checkToolTips(const QWidget& form) {
    Findings found;
    for (QWidget* each : shownControls(form))
        if (qobject_cast<QAbstractButton*>(each) != nullptr && !hasWord(captionOf(*each)) &&
            each->toolTip().isEmpty())
            found.push_back(finding(*each, "has neither a caption nor a tool tip"));
    return found;
}

}  // namespace zg
