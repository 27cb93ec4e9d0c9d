#include "shell/DialogButtons.h"

namespace zg {

DialogButtons addOkCancel(QBoxLayout& layout) {
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("cmdOk"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    layout.addLayout(row);
    return {ok, cancel};
}

}  // namespace zg
