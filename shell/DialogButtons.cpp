#include "shell/DialogButtons.h"

#include "platform/FormParts.h"

namespace zg {

DialogButtons addOkCancel(QBoxLayout& layout) {
    auto* ok = namedButton("OK", "cmdOk");
    ok->setDefault(true);
    auto* cancel = namedButton("Cancel", "cmdCancel");
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    layout.addLayout(row);
    return {ok, cancel};
}

}  // namespace zg
