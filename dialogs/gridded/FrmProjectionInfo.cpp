#include "dialogs/gridded/FrmProjectionInfo.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "dialogs/gridded/DatumTable.h"
#include "headers/InfoView.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

namespace {

const char* labelOf(const ProjectionChoice& choice, std::string ProjectionRecord::*value) {
    using R = ProjectionRecord;
    if (value == &R::RLAT0) return "L&atitude of Origin:";
    if (value == &R::RLON0) return "L&ongitude of Origin:";
    if (value == &R::XLAT1) return choice.angles.size() > 3 ? "Matching Parallel &1:" : "&Matching Parallel:";
    if (value == &R::XLAT2) return "Matching Parallel &2:";
    if (value == &R::FEAST) return "False &Easting (km):";
    if (value == &R::FNORTH) return "False Nort&hing (km):";
    return value == &R::IUTMZN ? "UTM &Zone:" : "Hemi&sphere:";
}

void fill(QComboBox& combo, const std::vector<std::string>& entries) {
    combo.clear();
    for (const std::string& entry : entries) combo.addItem(shown(entry));
    combo.setCurrentIndex(-1);
}

}  // namespace

frmProjectionInfo::frmProjectionInfo(Host& host, QWidget* parent) : QDialog(parent), host_(host) {
    nameForm(*this, "frmProjectionInfo", "Map Projection Information for Extraction Site Coordinates");
    // The box may show a caption that is not in the list; nothing can be typed there.
    cboProj = named(new QComboBox, "cboProj");
    cboProj->setEditable(true);
    cboProj->setInsertPolicy(QComboBox::NoInsert);
    cboProj->setCompleter(nullptr);
    cboProj->lineEdit()->setReadOnly(true);
    cboProj->lineEdit()->installEventFilter(this);
    cboProj->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    top->addWidget(labelFor("&Projection:", cboProj));
    top->addWidget(cboProj, 1);
    layout->addLayout(top);
    layout->addWidget(makeFrames());
    auto* native = namedButton("Set to &Native Projection of the Input Data", "cmdNativeProjection");
    layout->addWidget(native);
    layout->addWidget(makeDatum());
    layout->addLayout(makeButtons());
    connect(native, &QPushButton::clicked, this, guarded(host_, [this] { cmdNativeProjection_Click(); }));
    connect(cboProj, &QComboBox::activated, this, [this](int row) {
        const ProjectionChoice& choice = projectionChoices().at(static_cast<std::size_t>(row));
        showChoice(choice, choice.entry);
    });
    Form_Load();
    cboProj->setFocus();
}

QWidget* frmProjectionInfo::makeFrames() {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    int tallest = 0;
    for (const ProjectionChoice& choice : projectionChoices()) {
        if (choice.frame[0] == '\0') continue;
        QGroupBox* made = makeFrame(choice);
        frames_[choice.pmap] = made;
        column->addWidget(made);
        tallest = std::max(tallest, made->sizeHint().height());
        made->hide();
    }
    column->addStretch();
    holder->setMinimumHeight(tallest);  // the window has the same size for every choice
    return holder;
}

QGroupBox* frmProjectionInfo::makeFrame(const ProjectionChoice& choice) {
    auto* made = named(new QGroupBox(QString::fromLatin1(choice.entry)), choice.frame);
    auto* grid = new QGridLayout(made);
    int row = 0;
    for (const AngleField& angle : choice.angles) {
        auto* box = named(new QLineEdit, angle.box);
        auto* combo = named(new QComboBox, angle.combo);
        auto* label = labelFor(labelOf(choice, angle.value), box);
        // A screen reader reads only the label of such a box.
        auto* side = labelFor(angle.isLatitude ? "N/S:" : "E/W:", combo);
        side->setAccessibleName(spoken(label->text()) + QLatin1Char(' ') + side->text());
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row, 1);
        grid->addWidget(side, row, 2);
        grid->addWidget(combo, row++, 3);
    }
    for (const PlainField& plain : choice.plains) {
        const bool isList = plain.value == &ProjectionRecord::UTMHEM;
        QWidget* field = isList ? static_cast<QWidget*>(new QComboBox) : new QLineEdit;
        named(field, plain.box);
        grid->addWidget(labelFor(labelOf(choice, plain.value), field), row, 0);
        grid->addWidget(field, row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return made;
}

QGroupBox* frmProjectionInfo::makeDatum() {
    auto* made = named(new QGroupBox(QStringLiteral("DATUM")), "frmCoorSys1");
    cboCode = named(new QComboBox, "cboCode");
    cboCode->setEditable(true);
    cboCode->setInsertPolicy(QComboBox::NoInsert);
    cboCode->setCompleter(nullptr);
    cboCode->installEventFilter(this);
    cboCode->lineEdit()->installEventFilter(this);
    cboCont1 = named(new QComboBox, "cboCont1");
    cboDatum1 = named(new QComboBox, "cboDatum1");
    lstReg1 = named(new QListWidget, "lstReg1");
    lstReg1->setTabKeyNavigation(false);
    lstReg1->setAccessibleName(QStringLiteral("Region"));
    lstReg1->setMinimumHeight(80);
    lstReg1->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    lblCoor1b = named(labelFor("&Geoid - Ellipsoid:", cboDatum1), "lblCoor1b");
    lblCoor1c = named(labelFor("&Region:", lstReg1), "lblCoor1c");
    auto* grid = new QGridLayout(made);
    grid->addWidget(labelFor("DATUM &Code:", cboCode), 0, 0);
    grid->addWidget(cboCode, 0, 1);
    grid->addWidget(labelFor("Continen&t/Ocean:", cboCont1), 1, 0);
    grid->addWidget(cboCont1, 1, 1);
    grid->addWidget(lblCoor1b, 2, 0);
    grid->addWidget(cboDatum1, 2, 1);
    grid->addWidget(lblCoor1c, 3, 0, Qt::AlignTop);
    grid->addWidget(lstReg1, 3, 1);
    grid->setColumnStretch(1, 1);
    for (QWidget* hidden : {static_cast<QWidget*>(lblCoor1b), static_cast<QWidget*>(cboDatum1),
                            static_cast<QWidget*>(lblCoor1c), static_cast<QWidget*>(lstReg1)}) {
        QSizePolicy policy = hidden->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        hidden->setSizePolicy(policy);
        hidden->hide();
    }
    connect(cboCont1, &QComboBox::activated, this, [this] { cboCont1_Click(); });
    connect(cboDatum1, &QComboBox::activated, this, [this] { cboDatum1_Click(); });
    connect(lstReg1, &QListWidget::itemSelectionChanged, this, [this] { lstReg1_Click(); });
    // The selected row sets its code again after another one was typed.
    connect(lstReg1, &QListWidget::itemClicked, this, [this] { lstReg1_Click(); });
    connect(cboCode, &QComboBox::editTextChanged, this, [this] { codeChanged(); });
    return made;
}

QLayout* frmProjectionInfo::makeButtons() {
    auto* row = new QHBoxLayout;
    auto* ok = namedButton("OK", "cmdOK");
    ok->setDefault(true);
    auto* cancel = namedButton("Cancel", "cmdCancel");
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    connect(ok, &QPushButton::clicked, this, guarded(host_, [this] { cmdOK_Click(); }));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void frmProjectionInfo::Form_Load() {
    guarded(host_, [this] {
        if (!ReadDatumTable()) {
            host_.showBox({"Date Stamp in BlockData does not match that in the NIMA file.  Fatal Error!",
                           "Fatal Error!", BoxIcon::Warning, BoxButtons::Ok});
            return;
        }
        fillLists();
        const ProjectionChoice& utm = projectionChoices().at(1);
        showChoice(utm, utm.caption);
        if (!projection.PMAP.empty()) FillFromRecord();
    })();
}

void frmProjectionInfo::fillLists() {
    filling_ = true;
    cboProj->clear();
    for (const ProjectionChoice& choice : projectionChoices()) {
        cboProj->addItem(QString::fromLatin1(choice.entry));
        for (const AngleField& angle : choice.angles) {
            auto& combo = *findChild<QComboBox*>(QString::fromLatin1(angle.combo));
            fill(combo,
                 angle.isLatitude ? std::vector<std::string>{"N", "S"} : std::vector<std::string>{"E", "W"});
            combo.setCurrentIndex(0);
        }
    }
    fill(*findChild<QComboBox*>(QStringLiteral("cboLSOHEM1")), {"Northern", "Southern"});
    fill(*cboCont1, continents());
    fill(*cboCode, {"", "WGS-84", "NAS-C", "NWS-84"});
    cboCode->setCurrentIndex(0);
    cboDatum1->clear();
    lstReg1->clear();
    setFieldMark(*cboCode, buttonFaceColour);
    filling_ = false;
}

/// The frame of a choice, and one of its two captions in the box.
void frmProjectionInfo::showChoice(const ProjectionChoice& choice, const char* caption) {
    for (const auto& [pmap, frame] : frames_) frame->setVisible(pmap == choice.pmap);
    const int row = cboProj->findText(QString::fromLatin1(caption));
    cboProj->setCurrentIndex(row);
    if (row < 0) cboProj->setEditText(QString::fromLatin1(caption));
}

std::string frmProjectionInfo::text(const std::string& name) const {
    const QString wanted = QString::fromStdString(name);
    if (const auto* box = findChild<QLineEdit*>(wanted)) return typed(box->text());
    return typed(findChild<QComboBox*>(wanted)->currentText());
}

void frmProjectionInfo::setText(const std::string& name, const std::string& text) {
    const QString wanted = QString::fromStdString(name);
    if (auto* box = findChild<QLineEdit*>(wanted)) return box->setText(shown(text));
    auto* combo = findChild<QComboBox*>(wanted);
    combo->setCurrentIndex(combo->findText(shown(text)));
}

void frmProjectionInfo::FillFromRecord() {
    if (const ProjectionChoice* choice = choiceOfPmap(projection.PMAP)) {
        showChoice(*choice, choice->caption);
        for (const AngleField& angle : choice->angles) {
            const std::string& value = projection.*angle.value;
            setText(angle.box, value.empty() ? "" : value.substr(0, value.size() - 1));
            if (!value.empty()) setText(angle.combo, value.substr(value.size() - 1));
        }
        for (const PlainField& plain : choice->plains) {
            const std::string& value = projection.*plain.value;
            const bool isList = plain.value == &ProjectionRecord::UTMHEM;
            setText(plain.box, !isList ? value : value == "N" ? "Northern" : value == "S" ? "Southern" : "");
        }
    }
    cboCode->setEditText(shown(projection.DATUM));
}

void frmProjectionInfo::cmdNativeProjection_Click() {
    projection = nativeProjection();
    Form_Load();
}

void frmProjectionInfo::cboCont1_Click() {
    lstReg1->clear();
    fill(*cboDatum1, ellipsoidsOf(typed(cboCont1->currentText())));
    cboDatum1->show();
    lblCoor1b->show();
    setFieldMark(*cboCode, buttonFaceColour);
}

void frmProjectionInfo::cboDatum1_Click() {
    lstReg1->clear();
    for (const std::string& region : regionsOf(typed(cboDatum1->currentText())))
        lstReg1->addItem(shown(region));
    lstReg1->show();
    lblCoor1c->show();
    setFieldMark(*cboCode, buttonFaceColour);
}

void frmProjectionInfo::lstReg1_Click() {
    if (filling_) return;
    if (lstReg1->selectedItems().isEmpty()) return setFieldMark(*cboCode, buttonFaceColour);
    const std::string region = typed(lstReg1->selectedItems().front()->text());
    const std::string code = codeOf(typed(cboCont1->currentText()), typed(cboDatum1->currentText()), region);
    if (code.empty()) return;
    showCode(code);
    // The list holds the regions of all continents.
    if (const DatumRegion* row = DatumLookUp(code)) showContinent(row->continent, row->ellipsoid);
}

/// The lists above the regions, which do not change.
void frmProjectionInfo::showContinent(const std::string& continent, const std::string& ellipsoid) {
    if (typed(cboCont1->currentText()) == continent) return;
    cboCont1->setCurrentIndex(cboCont1->findText(shown(continent)));
    fill(*cboDatum1, ellipsoidsOf(continent));
    cboDatum1->setCurrentIndex(cboDatum1->findText(shown(ellipsoid)));
}

void frmProjectionInfo::showCode(const std::string& code) {
    filling_ = true;
    cboCode->setEditText(shown(code));
    filling_ = false;
    ClearInvalid(*cboCode);
}

/// The lists always show the meaning of a typed code.
void frmProjectionInfo::codeChanged() {
    if (filling_) return;
    const std::string before = typed(cboCode->currentText());
    const std::string code = DatumAlias(before);
    if (code != before) showCode(code);
    if (const DatumRegion* row = DatumLookUp(code)) showRegion(row->continent, row->ellipsoid, row->region);
}

void frmProjectionInfo::showRegion(const std::string& continent, const std::string& ellipsoid,
                                   const std::string& region) {
    filling_ = true;
    cboCont1->setCurrentIndex(cboCont1->findText(shown(continent)));
    cboCont1_Click();
    cboDatum1->setCurrentIndex(cboDatum1->findText(shown(ellipsoid)));
    cboDatum1_Click();
    // Regions with the same name cannot be told apart here: show the first.
    const auto items = lstReg1->findItems(shown(region), Qt::MatchExactly);
    if (!items.isEmpty()) lstReg1->setCurrentItem(items.front());
    lstReg1->horizontalScrollBar()->setValue(0);  // show the start of a long region
    filling_ = false;
    ClearInvalid(*cboCode);
}

bool frmProjectionInfo::eventFilter(QObject* watched, QEvent* event) {
    if (watched == cboProj->lineEdit() && event->type() == QEvent::MouseButtonPress) {
        cboProj->showPopup();
        return true;
    }
    if (leavesField(*event) && cboCode != nullptr && (watched == cboCode || watched == cboCode->lineEdit())) {
        codeChanged();
        clearFilledMark(*cboCode, !cboCode->currentText().isEmpty());
    }
    return QDialog::eventFilter(watched, event);
}

bool frmProjectionInfo::refuse(const std::string& message) {
    host_.showBox({message, "Error", BoxIcon::None, BoxButtons::Ok});
    return false;
}

/// A caption of the list that is not the record's own is refused: the last three are only accepted as the
/// data give them.
bool frmProjectionInfo::CheckProjection(const ProjectionChoice*& choice) {
    choice = choiceOfCaption(typed(cboProj->currentText()));
    if (choice == nullptr) return refuse("Please choose a projection from the drop-down box.");
    projection.PMAP = choice->pmap;
    const std::string fault = projectionFault(*choice, [this](const char* name) { return text(name); });
    return fault.empty() || refuse(fault);
}

void frmProjectionInfo::wrapLatitudes() {
    for (const char* box : latitudeBoxes()) {
        try {
            setText(box, wrapped(text(box)));
        } catch (const RunTimeError&) {
            continue;  // no number: it belongs to another projection, whose fields are hidden
        }
    }
}

void frmProjectionInfo::cmdOK_Click() {
    const ProjectionChoice* choice = nullptr;
    if (!CheckProjection(choice)) return;
    if (cboCode->currentText().isEmpty()) {
        MarkInvalid(*cboCode);
        refuse("Please select a DATUM.");
        cboCode->setFocus();
        return;
    }
    wrapLatitudes();
    SaveProjection(*choice, [this](const char* name) { return text(name); });
    accept();
}

}  // namespace zg
