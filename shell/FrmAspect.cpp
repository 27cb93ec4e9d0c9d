#include "shell/FrmAspect.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "base/Numbers.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/KeyFilter.h"
#include "platform/QtText.h"
#include "processing/KeyFilters.h"
#include "shell/DialogButtons.h"

namespace zg {

frmAspect::frmAspect(Host& host, PolarGraph& graph, QWidget* parent)
    : QDialog(parent), host_(host), graph_(graph) {
    // The title is that of the zoom dialog: users know both by it.
    nameForm(*this, "frmAspect", "Custom Zoom");
    const QString current = shown(singleText(graph.AspectRatio()));
    auto* frame = new QGroupBox(QStringLiteral("&Set aspect to"));
    lblLabel = named(new QLabel(QStringLiteral("Current Aspect: ") + current), "lblLabel");
    txtAspect = named(new QLineEdit(current), "txtAspect");
    txtAspect->setAccessibleName(spoken(frame->title()));
    filterKeys(*txtAspect, [this](std::int16_t key) -> std::int16_t {
        const bool secondPoint = key == '.' && txtAspect->text().contains(QLatin1Char('.')) &&
                                 !txtAspect->selectedText().contains(QLatin1Char('.'));
        return secondPoint ? std::int16_t{0} : asciiOnly(KeyNumericPositive)(key);
    });

    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(lblLabel);
    inFrame->addWidget(txtAspect);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    const DialogButtons buttons = addOkCancel(*layout);
    cmdOk = buttons.ok;
    cmdCancel = buttons.cancel;
    connect(txtAspect, &QLineEdit::textChanged, this,
            [this](const QString& text) { cmdOk->setEnabled(!text.isEmpty()); });
    connect(cmdOk, &QPushButton::clicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    txtAspect->setFocus();
    txtAspect->selectAll();
}

void frmAspect::cmdOk_Click() {
    const double ratio = val(typed(txtAspect->text()));
    const char* refusal = nullptr;
    if (ratio <= 0)
        refusal = "The aspect ratio  must be greater than 0.";
    else if (ratio > 5)
        refusal = "The aspect ratio must be less than or equal to 5";
    if (refusal != nullptr) {
        host_.showBox({refusal, "Aspect Ratio", BoxIcon::Warning, BoxButtons::Ok});
        txtAspect->setFocus();
        txtAspect->selectAll();
        return;
    }
    const float single = toSingle(ratio);
    if (single != graph_.AspectRatio()) graph_.AspectRatio(single);
    accept();
}

}  // namespace zg
