#pragma once

#include <QBoxLayout>
#include <QPushButton>

namespace zg {

struct DialogButtons {
    QPushButton* ok;
    QPushButton* cancel;
};

/// Adds cmdOk ("OK", the default button) and cmdCancel ("Cancel") in a row at the right.
DialogButtons addOkCancel(QBoxLayout& layout);

}  // namespace zg
