// The layout of the two pages of the properties dialog.

#include <QButtonGroup>
#include <QVBoxLayout>

#include "platform/Captions.h"
#include "platform/FormParts.h"
#include "platform/KeyFilter.h"
#include "platform/QtText.h"
#include "processing/KeyFilters.h"
#include "shell/FrmProperties.h"

namespace zg {

namespace {

template <typename Control>
Control* captioned(const char* caption, const char* name) {
    return named(new Control(QString::fromLatin1(caption)), name);
}

QLineEdit* numberBox(const char* name, KeyFunction keys) {
    auto* box = named(new QLineEdit, name);
    filterKeys(*box, std::move(keys));
    box->setMinimumWidth(digitsWide(*box, 7));
    box->setMaximumWidth(digitsWide(*box, 11));
    return box;
}

}  // namespace

QWidget* frmProperties::makePatterns() {
    auto* page = named(new QFrame, "fraPatterns");
    auto* layout = new QGridLayout(page);
    layout->addWidget(makeLine(), 0, 0);
    auto* sample = captioned<QGroupBox>("Sample", "fraSample");
    picPattern = new CurveSample;
    auto* inSample = new QVBoxLayout(sample);
    inSample->addWidget(picPattern);
    layout->addWidget(sample, 1, 0);
    layout->addWidget(makeMarker(), 0, 1, 2, 1);
    layout->setRowStretch(1, 1);
    return page;
}

QGroupBox* frmProperties::makeLine() {
    auto* frame = captioned<QGroupBox>("Line", "fraLine");
    optLnone = captioned<QRadioButton>("&None", "optLnone");
    optLcustom = captioned<QRadioButton>("Custo&m", "optLcustom");
    chkLconnect = captioned<QCheckBox>("Connect &vertices", "chkLconnect");
    chkLshading = captioned<QCheckBox>("Allow &shading", "chkLshading");
    picLcolor = named(new ColourBox(black), "picLcolor");
    picLcolor->setAccessibleName(QStringLiteral("Line color"));
    cmdLcolor = namedButton("Color...", "cmdLcolor");
    imcLstyle = lineStyleList();
    imcLweight = lineWeightList();
    auto* grid = new QGridLayout(frame);
    grid->addWidget(optLnone, 0, 0);
    grid->addWidget(optLcustom, 0, 1);
    grid->addWidget(chkLconnect, 1, 0, 1, 2);
    grid->addWidget(chkLshading, 2, 0, 1, 2);
    grid->addWidget(labelFor("C&olor:", picLcolor), 3, 0);
    auto* colour = new QHBoxLayout;
    colour->addWidget(picLcolor);
    colour->addWidget(cmdLcolor);
    colour->addStretch();
    grid->addLayout(colour, 3, 1);
    grid->addWidget(labelFor("St&yle:", imcLstyle), 4, 0);
    grid->addWidget(imcLstyle, 4, 1);
    grid->addWidget(labelFor("&Weight:", imcLweight), 5, 0);
    grid->addWidget(imcLweight, 5, 1);
    return frame;
}

QGroupBox* frmProperties::makeMarker() {
    auto* frame = captioned<QGroupBox>("Marker", "fraMarker");
    optMnone = captioned<QRadioButton>("Non&e", "optMnone");
    optMcustom = captioned<QRadioButton>("C&ustom", "optMcustom");
    optMtype[0] = captioned<QRadioButton>("&Picture effect", "optMtype_0");
    optMtype[1] = captioned<QRadioButton>("Font effe&ct", "optMtype_1");
    auto* shownGroup = new QButtonGroup(this);
    shownGroup->addButton(optMnone);
    shownGroup->addButton(optMcustom);
    auto* effectGroup = new QButtonGroup(this);
    for (QRadioButton* effect : optMtype) effectGroup->addButton(effect);
    cmbMalignh = named(new QComboBox, "cmbMalignh");
    cmbMalignh->addItems({"LEFT", "RIGHT", "CENTER"});
    cmbMalignv = named(new QComboBox, "cmbMalignv");
    cmbMalignv->addItems({"TOP", "BOTTOM", "CENTER"});
    cmbMalignv->setAccessibleName(QStringLiteral("Vertical alignment"));
    cmbMalignh->setToolTip(QStringLiteral("Horizontal alignment"));
    cmbMalignv->setToolTip(cmbMalignv->accessibleName());
    auto* grid = new QGridLayout(frame);
    grid->addWidget(optMnone, 0, 0);
    grid->addWidget(optMcustom, 0, 1);
    grid->addWidget(optMtype[1], 1, 0, 1, 3);
    grid->addWidget(makeFontEffect(), 2, 0, 1, 3);
    grid->addWidget(optMtype[0], 3, 0, 1, 3);
    grid->addWidget(makePictureEffect(), 4, 0, 1, 3);
    grid->addWidget(labelFor("Ali&gnment:", cmbMalignh), 5, 0);
    grid->addWidget(cmbMalignh, 5, 1);
    grid->addWidget(cmbMalignv, 5, 2);
    grid->setColumnStretch(2, 1);
    return frame;
}

QWidget* frmProperties::makeFontEffect() {
    fontEffect_ = new QWidget;
    picMcolor = named(new ColourBox(black), "picMcolor");
    picMcolor->setAccessibleName(QStringLiteral("Marker color"));
    cmdMcolor = namedButton("Color...", "cmdMcolor");
    cmdMfont = namedButton("&Font...", "cmdMfont");
    cmbMstyle = named(new QComboBox, "cmbMstyle");
    cmbMstyle->setMaxVisibleItems(16);
    auto* grid = new QGridLayout(fontEffect_);
    grid->setContentsMargins(18, 0, 0, 0);
    grid->addWidget(labelFor("Co&lor:", picMcolor), 0, 0);
    grid->addWidget(picMcolor, 0, 1);
    grid->addWidget(cmdMcolor, 0, 2);
    grid->addWidget(labelFor("S&tyle:", cmbMstyle), 1, 0);
    grid->addWidget(cmbMstyle, 1, 1);
    grid->addWidget(cmdMfont, 1, 2);
    grid->setColumnStretch(3, 1);
    return fontEffect_;
}

QWidget* frmProperties::makePictureEffect() {
    pictureEffect_ = new QWidget;
    constexpr std::array<const char*, 2> pictures = {"P&icture:", "Mas&k:"};
    constexpr std::array<const char*, 2> choices = {"Choose a picture file", "Choose a mask file"};
    constexpr std::array<const char*, 2> sizes = {"Wi&dth:", "&Height:"};
    auto* grid = new QGridLayout(pictureEffect_);
    grid->setContentsMargins(18, 0, 0, 0);
    for (std::size_t i = 0; i < 2; ++i) {
        const int row = static_cast<int>(i);
        const std::string index = std::to_string(i);
        txtMpicloc[i] = named(new QLineEdit, ("txtMpicloc_" + index).c_str());
        cmdMpicloc[i] = namedButton("...", ("cmdMpicloc_" + index).c_str());
        cmdMpicloc[i]->setFixedWidth(32);
        cmdMpicloc[i]->setAccessibleName(QString::fromLatin1(choices[i]));
        cmdMpicloc[i]->setToolTip(cmdMpicloc[i]->accessibleName());
        grid->addWidget(labelFor(pictures[i], txtMpicloc[i]), row, 0);
        grid->addWidget(txtMpicloc[i], row, 1, 1, 3);
        grid->addWidget(cmdMpicloc[i], row, 4);
    }
    chkMautosize = captioned<QCheckBox>("Autosi&ze", "chkMautosize");
    chkMtrans = captioned<QCheckBox>("T&ransparent", "chkMtrans");
    grid->addWidget(chkMautosize, 2, 0, 1, 2);
    grid->addWidget(chkMtrans, 2, 2, 1, 3);
    for (std::size_t i = 0; i < 2; ++i) {
        txtMsize[i] = numberBox(("txtMsize_" + std::to_string(i)).c_str(), KeyNumericInteger);
        grid->addWidget(labelFor(sizes[i], txtMsize[i]), 3, static_cast<int>(2 * i));
        grid->addWidget(txtMsize[i], 3, static_cast<int>(2 * i + 1));
    }
    return pictureEffect_;
}

QWidget* frmProperties::makeOptions() {
    auto* page = named(new QFrame, "fraOptions");
    auto* grid = new QGridLayout(page);
    int row = 0;
    const auto add = [&](const char* label, QLineEdit* box, const char* range) {
        grid->addWidget(labelFor(label, box), row, 0);
        grid->addWidget(box, row, 1);
        grid->addWidget(new QLabel(QString::fromLatin1(range)), row, 2);
        ++row;
    };
    constexpr const char* wide = "Range: 0...1,000,000";
    txtAngle[0] = numberBox("txtAngle_0", KeyNumericInteger);
    txtAngle[1] = numberBox("txtAngle_1", KeyNumericInteger);
    txtStep = numberBox("txtStep", KeyNumericPositive);
    txtDelay = numberBox("txtDelay", KeyNumericInteger);
    txtAngle[0]->setToolTip(QStringLiteral("Degrees of the first point of the curve"));
    txtAngle[1]->setToolTip(QStringLiteral("Degrees of the last point of the curve"));
    txtStep->setToolTip(QStringLiteral("Degrees from one point of the curve to the next"));
    txtDelay->setToolTip(
        QStringLiteral("Milliseconds from one point to the next when the curve is played, at most 32,767"));
    add("&Starting angle :", txtAngle[0], wide);
    add("&Ending angle  :", txtAngle[1], wide);
    add("S&tep               :", txtStep, "Range: 0.0001...10,000");
    add("&Delay             :", txtDelay, wide);
    auto* note = new QLabel(
        QStringLiteral("To turn on animation set delay > 0. At the main menu, click Graph->Play."));
    note->setWordWrap(true);
    note->setToolTip(QStringLiteral("A right click on the curve's row in the list opens the menu with Play"));
    grid->addWidget(note, row, 0, 1, 3);
    grid->setRowStretch(row + 1, 1);
    grid->setColumnStretch(3, 1);
    return page;
}

QLayout* frmProperties::makeButtons() {
    cmdOK = captioned<QPushButton>("OK", "cmdOK");
    cmdOK->setDefault(true);
    cmdCancel = namedButton("Cancel", "cmdCancel");
    cmdApply = namedButton("&Apply", "cmdApply");
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* each : {cmdOK, cmdCancel, cmdApply}) row->addWidget(each);
    return row;
}

}  // namespace zg
