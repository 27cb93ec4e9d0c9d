#include "shell/FrmProperties.h"

#include <QVBoxLayout>
#include <cmath>
#include <limits>
#include <optional>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/Pickers.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr double angleEnd = 1000000;
constexpr double largestStep = 10000;
constexpr int stepDecimals = 4;

std::optional<double> numberIn(const QLineEdit& box) {
    try {
        return toDouble(typed(box.text()));
    } catch (const RunTimeError&) {
        return std::nullopt;  // pasted text need not be a number
    }
}

/// The size of a picture: nothing for a text that is not a number, or a number that rounds to 0.
std::optional<double> roundedSize(const QLineEdit& box) {
    const std::optional<double> number = numberIn(box);
    if (!number || !(roundHalfEven(*number) > 0)) return std::nullopt;
    return roundHalfEven(*number);
}

/// The same, limited to the range of a size.
std::optional<std::int32_t> sizeIn(const QLineEdit& box) {
    const std::optional<double> size = roundedSize(box);
    if (!size || *size > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return static_cast<std::int32_t>(*size);
}

}  // namespace

frmProperties::frmProperties(Host& host, GrapInfo& graph, std::function<void()> applied, QWidget* parent)
    : QDialog(parent), host_(host), graph_(graph), applied_(std::move(applied)) {
    nameForm(*this, "frmProperties", "Properties");
    tbsProp = named(new QTabWidget, "tbsProp");
    tbsProp->addTab(makePatterns(), QStringLiteral("Patterns"));
    tbsProp->addTab(makeOptions(), QStringLiteral("Options"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tbsProp, 1);
    layout->addLayout(makeButtons());
    load();
    followChanges();
    checkWhenLeft();
    loading_ = false;
    enableFields();
    drawSample();
    cmdApply->setEnabled(false);
}

void frmProperties::load() {
    const Series& series = graph_.Series;
    const Marker& marker = series.Marker;
    font_ = marker.Font;
    (series.AllowPen ? optLcustom : optLnone)->setChecked(true);
    chkLconnect->setChecked(series.Pen.AllowConVertices);
    chkLshading->setChecked(series.Pen.AllowShading);
    picLcolor->setColour(series.Pen.FillColor);
    imcLstyle->setCurrentIndex(std::clamp(series.Pen.Style, 0, imcLstyle->count() - 1));
    imcLweight->setCurrentIndex(std::clamp(series.Pen.Weight, 1, imcLweight->count()) - 1);
    (series.AllowMarker ? optMcustom : optMnone)->setChecked(true);
    optMtype[marker.UsePicture ? 0 : 1]->setChecked(true);
    picMcolor->setColour(marker.FillColor);
    fillCharacters(*cmbMstyle, font_);
    chooseCharacter(*cmbMstyle, marker.Style);
    cmbMalignh->setCurrentIndex(marker.GetHorizAlign);
    cmbMalignv->setCurrentIndex(marker.GetVertAlign == 4 ? 0 : (marker.GetVertAlign == 8 ? 1 : 2));
    chkMautosize->setChecked(marker.AutoSize != 0);
    chkMtrans->setChecked(marker.Transparent);
    txtMsize[0]->setText(QString::number(marker.PictureWidth));
    txtMsize[1]->setText(QString::number(marker.PictureHeight));
    txtMpicloc[0]->setText(fileName(marker.PicturePath));
    txtMpicloc[1]->setText(fileName(marker.MaskPicturePath));
    txtAngle[0]->setText(shown(singleText(graph_.StartingAngle)));
    txtAngle[1]->setText(shown(singleText(graph_.EndingAngle)));
    txtStep->setText(shown(singleText(graph_.Step)));
    txtDelay->setText(QString::number(graph_.Delay));
}

void frmProperties::followChanges() {
    const auto follow = guarded(host_, [this] { changed(); });
    for (QRadioButton* button : {optLnone, optLcustom, optMnone, optMcustom, optMtype[0], optMtype[1]})
        connect(button, &QRadioButton::toggled, this, follow);
    for (QCheckBox* box : {chkLconnect, chkLshading, chkMautosize, chkMtrans})
        connect(box, &QCheckBox::toggled, this, follow);
    for (QComboBox* list : {imcLstyle, imcLweight, cmbMstyle, cmbMalignh, cmbMalignv})
        connect(list, &QComboBox::currentIndexChanged, this, follow);
    for (QLineEdit* box : {txtMsize[0], txtMsize[1], txtMpicloc[0], txtMpicloc[1], txtAngle[0], txtAngle[1],
                           txtStep, txtDelay})
        connect(box, &QLineEdit::textChanged, this, follow);
    picLcolor->asks(host_, cmdLcolor, [this](Colour) { changed(); });
    picMcolor->asks(host_, cmdMcolor, [this](Colour) { changed(); });
    connect(cmdMfont, &QPushButton::clicked, this, guarded(host_, [this] { cmdMfont_Click(); }));
    for (std::size_t i = 0; i < 2; ++i)
        connect(cmdMpicloc[i], &QPushButton::clicked, this,
                guarded(host_, [this, i] { cmdMpicloc_Click(i); }));
    connect(cmdApply, &QPushButton::clicked, this, guarded(host_, [this] { cmdApply_Click(); }));
    connect(cmdOK, &QPushButton::clicked, this, guarded(host_, [this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmProperties::checkWhenLeft() {
    for (std::size_t i = 0; i < 2; ++i) {
        connect(txtAngle[i], &QLineEdit::editingFinished, this, [this, i] { checkAngle(i); });
        connect(txtMsize[i], &QLineEdit::editingFinished, this, [this, i] { checkSize(i); });
    }
    connect(txtStep, &QLineEdit::editingFinished, this, [this] { checkStep(); });
    connect(txtDelay, &QLineEdit::editingFinished, this, [this] { checkDelay(); });
}

void frmProperties::changed() {
    if (loading_) return;
    enableFields();
    drawSample();
    cmdApply->setEnabled(true);
}

void frmProperties::enableFields() {
    const bool line = optLcustom->isChecked();
    for (QWidget* field : std::initializer_list<QWidget*>{chkLconnect, chkLshading, picLcolor, cmdLcolor,
                                                          imcLstyle, imcLweight})
        field->setEnabled(line);
    const bool marker = optMcustom->isChecked();
    for (QWidget* field : std::initializer_list<QWidget*>{optMtype[0], optMtype[1], cmbMalignh, cmbMalignv})
        field->setEnabled(marker);
    fontEffect_->setEnabled(marker && optMtype[1]->isChecked());
    pictureEffect_->setEnabled(marker && optMtype[0]->isChecked());
    for (QLineEdit* size : txtMsize) size->setEnabled(!chkMautosize->isChecked());
}

/// The values of the fields; for sizes that are not numbers, those of the graph.
Series frmProperties::shownSeries() const {
    Series series = graph_.Series;
    series.AllowPen = optLcustom->isChecked();
    series.AllowMarker = optMcustom->isChecked();
    series.Pen.AllowConVertices = chkLconnect->isChecked();
    series.Pen.AllowShading = chkLshading->isChecked();
    series.Pen.FillColor = picLcolor->colour();
    series.Pen.Style = imcLstyle->currentIndex();
    series.Pen.Weight = imcLweight->currentIndex() + 1;
    constexpr std::array<std::int32_t, 3> vertical = {4, 8, 16};
    Marker& marker = series.Marker;
    marker.setAlignment(cmbMalignh->currentIndex() +
                        vertical[static_cast<std::size_t>(cmbMalignv->currentIndex())]);
    marker.AutoSize = chkMautosize->isChecked() ? -1 : 0;
    marker.FillColor = picMcolor->colour();
    marker.Font = font_;
    marker.Style = chosenCharacter(*cmbMstyle);
    marker.Transparent = chkMtrans->isChecked();
    marker.UsePicture = optMtype[0]->isChecked();
    marker.SetPictureSize(sizeIn(*txtMsize[0]).value_or(marker.PictureWidth),
                          sizeIn(*txtMsize[1]).value_or(marker.PictureHeight));
    if (!txtMpicloc[0]->text().isEmpty()) marker.PicturePath = filePath(txtMpicloc[0]->text());
    if (!txtMpicloc[1]->text().isEmpty()) marker.MaskPicturePath = filePath(txtMpicloc[1]->text());
    return series;
}

void frmProperties::drawSample() {
    Series series = shownSeries();
    MarkerPictures pictures;
    if (series.Marker.UsePicture) {
        series.Marker.Transparent = true;  // the sample shows a picture only with its mask
        pictures = {loadMarkerPicture(filePath(txtMpicloc[0]->text())),
                    loadMarkerPicture(filePath(txtMpicloc[1]->text()))};
        if (chkMautosize->isChecked() && pictures.picture)
            series.Marker.SetPictureSize(pictures.picture->width(), pictures.picture->height());
    }
    picPattern->show(series, pictures);
}

void frmProperties::checkAngle(std::size_t index) {
    const std::optional<double> angle = numberIn(*txtAngle[index]);
    if (angle && *angle >= 0 && *angle < angleEnd) return;
    txtAngle[index]->setText(shown(singleText(index == 0 ? graph_.StartingAngle : graph_.EndingAngle)));
}

void frmProperties::checkStep() {
    const std::optional<double> step = numberIn(*txtStep);
    const double rounded = step && std::isfinite(*step) ? roundHalfEven(*step, stepDecimals) : 0;
    const bool accepted = rounded > 0 && rounded <= largestStep;
    txtStep->setText(shown(accepted ? doubleText(rounded) : singleText(graph_.Step)));
}

void frmProperties::checkDelay() {
    const std::optional<double> delay = numberIn(*txtDelay);
    if (delay && *delay >= 0 && *delay < angleEnd) return;
    txtDelay->setText(QString::number(graph_.Delay));
}

void frmProperties::checkSize(std::size_t index) {
    if (chkMautosize->isChecked()) return;
    if (const std::optional<double> size = roundedSize(*txtMsize[index])) {
        const QString whole = shown(doubleText(*size));
        if (txtMsize[index]->text() != whole) txtMsize[index]->setText(whole);
        return;
    }
    showStoredSize(index);
}

/// What the box shows is what is applied: a size that is too large is reported, like a delay that is too
/// long, and a locked box gets the stored one back.
void frmProperties::takeSize(std::size_t index) {
    if (sizeIn(*txtMsize[index])) return;
    if (!chkMautosize->isChecked()) zg::raise(ErrorNumber::Overflow);
    showStoredSize(index);
}

void frmProperties::showStoredSize(std::size_t index) {
    const Marker& marker = graph_.Series.Marker;
    txtMsize[index]->setText(QString::number(index == 0 ? marker.PictureWidth : marker.PictureHeight));
}

/// An accelerator presses the button without leaving the box in which the user is typing.
void frmProperties::checkAll() {
    for (std::size_t i = 0; i < 2; ++i) {
        checkAngle(i);
        checkSize(i);
    }
    checkStep();
    checkDelay();
}

void frmProperties::cmdMfont_Click() {
    const FontRecord current{0, font_.Name, toInt16(static_cast<double>(font_.Size)), font_.Bold,
                             font_.Italic};
    const auto font = host_.pickFont(current);
    if (!font) return;
    font_ = {font->name, static_cast<float>(font->size), font->bold, font->italic};
    loading_ = true;  // one change, not one per row
    fillCharacters(*cmbMstyle, font_);
    loading_ = false;
    changed();
}

void frmProperties::cmdMpicloc_Click(std::size_t index) {
    const std::string path =
        ShowFileOpen(host_, pictureFilter, 1, DirOf(filePath(txtMpicloc[index]->text())));
    if (!path.empty()) txtMpicloc[index]->setText(fileName(path));
}

void frmProperties::cmdApply_Click() {
    checkAll();
    for (std::size_t i = 0; i < 2; ++i) takeSize(i);
    graph_.Series = shownSeries();
    graph_.StartingAngle = toSingle(typed(txtAngle[0]->text()));
    graph_.EndingAngle = toSingle(typed(txtAngle[1]->text()));
    graph_.Step = toSingle(typed(txtStep->text()));
    graph_.Delay = toInt16(typed(txtDelay->text()));
    applied_();
    cmdApply->setEnabled(false);
}

void frmProperties::cmdOK_Click() {
    checkAll();
    if (cmdApply->isEnabled()) cmdApply_Click();
    accept();
}

}  // namespace zg
