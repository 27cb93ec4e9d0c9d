#include "shell/FrmComment.h"

#include <QVBoxLayout>

#include "base/Text.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "shell/DialogButtons.h"

namespace zg {

frmComment::frmComment(Host& host, PolarGraph& graph, QWidget* parent) : QDialog(parent), graph_(graph) {
    nameForm(*this, "frmComment", "Comment");
    txtComment = named(new QPlainTextEdit(shown(graph.Comment())), "txtComment");
    txtComment->setAccessibleName(windowTitle());
    txtComment->setTabChangesFocus(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtComment);
    const DialogButtons buttons = addOkCancel(*layout);
    connect(buttons.ok, &QPushButton::clicked, this, guarded(host, [this] { cmdOk_Click(); }));
    connect(buttons.cancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(windowSize(*this, 50));
}

void frmComment::cmdOk_Click() {
    graph_.Comment(trim(typed(txtComment->toPlainText())));
    accept();
}

}  // namespace zg
