#pragma once

// The small parts from which every form is assembled.

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "platform/KeyFilter.h"
#include "platform/QtText.h"

namespace zg {

/// Gives the control its object name.
template <typename Control>
Control* named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

/// The same for a name that is put together.
template <typename Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

/// Names a form and gives it its title.
inline void nameForm(QWidget& form, const char* name, const char* title) {
    form.setObjectName(QString::fromLatin1(name));
    form.setWindowTitle(QString::fromLatin1(title));
}

inline QPushButton* namedButton(const char* caption, const char* name) {
    return named(new QPushButton(QString::fromLatin1(caption)), name);
}

/// A button whose caption says too little by itself; `what` is its name for screen readers.
inline QPushButton* browseButton(const char* caption, const char* name, const char* what) {
    QPushButton* button = namedButton(caption, name);
    button->setAccessibleName(QString::fromLatin1(what));
    return button;
}

/// A text box in which Enter is Tab, and whose keys are filtered if there is a function for it.
inline QLineEdit* enteredBox(const char* name, KeyFunction keys = nullptr) {
    auto* box = named(new QLineEdit, name);
    if (keys) filterKeys(*box, std::move(keys));
    enterIsTab(*box);
    return box;
}

/// From now on a pasted line end or tab is shown as a blank: the text becomes a part of one line in a file.
inline void keepOneLine(QLineEdit& box) {
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box](const QString& text) {
        QString line = text;
        for (QChar& character : line)
            if (character < QLatin1Char(' ')) character = QLatin1Char(' ');
        if (line == text) return;
        const int cursor = box.cursorPosition();
        box.setText(line);
        box.setCursorPosition(cursor);
    });
}

/// The label of a control; its accelerator moves the focus there.
inline QLabel* labelFor(const char* text, QWidget* buddy) {
    auto* label = new QLabel(QString::fromLatin1(text));
    label->setBuddy(buddy);
    return label;
}

}  // namespace zg
