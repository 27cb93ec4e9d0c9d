#include "shell/FrmZoom.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/Numbers.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/KeyFilter.h"
#include "platform/QtText.h"
#include "processing/KeyFilters.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/DialogButtons.h"

namespace zg {

namespace {

constexpr double smallestZoom = 20;
constexpr double largestZoom = 500;

QStringList zoomRows() {
    QStringList rows;
    for (int percent = 20; percent <= 100; percent += 5) rows.append(QString::number(percent));
    for (int percent = 125; percent <= 200; percent += 25) rows.append(QString::number(percent));
    for (int percent = 250; percent <= 500; percent += 50) rows.append(QString::number(percent));
    return rows;
}

}  // namespace

frmZoom::frmZoom(Host& host, PolarGraph& graph, QWidget* parent)
    : QDialog(parent), host_(host), graph_(graph) {
    nameForm(*this, "frmZoom", "Custom Zoom");
    auto* frame = new QGroupBox(QStringLiteral("&Zoom to (%)"));
    lblLabel = named(new QLabel(QStringLiteral("Current zoom: %1%").arg(graph.Zoom())), "lblLabel");
    cmbZoom = named(new QComboBox, "cmbZoom");
    cmbZoom->setAccessibleName(spoken(frame->title()));
    cmbZoom->setEditable(true);
    cmbZoom->setInsertPolicy(QComboBox::NoInsert);
    cmbZoom->setCompleter(nullptr);  // it would change a typed 12 to 125
    cmbZoom->addItems(zoomRows());
    cmbZoom->setCurrentText(QString::number(graph.Zoom()));
    filterKeys(*cmbZoom->lineEdit(), asciiOnly(KeyNumericInteger));

    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(lblLabel);
    inFrame->addWidget(cmbZoom);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    const DialogButtons buttons = addOkCancel(*layout);
    cmdOk = buttons.ok;
    cmdCancel = buttons.cancel;
    connect(cmdOk, &QPushButton::clicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    cmbZoom->setFocus();
    cmbZoom->lineEdit()->selectAll();
}

void frmZoom::cmdOk_Click() {
    const std::string text = typed(cmbZoom->currentText());
    const double percent = val(text);
    if (percent < smallestZoom || percent > largestZoom) {
        host_.showBox({"Enter a value between 20 to 500.", "Zoom", BoxIcon::Information, BoxButtons::Ok});
        cmbZoom->setFocus();
        return;
    }
    const std::int16_t zoom = toInt16(percent);
    if (zoom != graph_.Zoom()) graph_.Zoom(zoom);
    settings.ZoomPercentText = text;
    WriteCfgFile(settings.CfgFilePath);
    accept();
}

}  // namespace zg
