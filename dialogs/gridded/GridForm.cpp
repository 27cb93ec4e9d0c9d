// The operations that the wizard needs from its window; GridFormLayout.cpp builds the window.

#include "dialogs/gridded/GridForm.h"

#include <QEvent>
#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/Text.h"
#include "dialogs/gridded/FrmProjectionInfo.h"
#include "headers/Stations.h"
#include "platform/Combos.h"
#include "platform/DirectoryBox.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/ListMoves.h"
#include "platform/Moments.h"
#include "platform/Pickers.h"
#include "platform/Pointers.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "platform/ReasonLabel.h"
#include "platform/UtcTip.h"

namespace zg {

namespace {

constexpr const char* folderPrompt = "Select a Working Directory:";

/// Such a text has the encoding of the file system.
bool namesFile(const QLineEdit& box) {
    return box.objectName() == QLatin1String("txtOutputDirectory") ||
           box.objectName() == QLatin1String("txtFRQOutputFilename");
}

bool isFilled(const QWidget& field) {
    if (const auto* list = qobject_cast<const QListWidget*>(&field)) {
        const bool isStations = list->objectName() == QLatin1String("lstStations");
        return isStations ? !list->selectedItems().isEmpty() : list->count() > 0;
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&field)) return !combo->currentText().isEmpty();
    const auto* box = qobject_cast<const QLineEdit*>(&field);
    return box != nullptr && !box->text().isEmpty();
}

}  // namespace

GridForm::GridForm(const GridVariation& variation, Host& host, ProcessStarter& starter,
                   ProcessingWindow window, QWidget* parent)
    : QDialog(parent),
      variation_(variation),
      host_(host),
      window_(std::move(window)),
      wizard_(variation, *this, host, starter, window_) {
    nameForm(*this, variation.form, variation.title);
    auto* grid = new QGridLayout(this);
    grid->addWidget(makeStep1(), 0, 0);
    grid->addWidget(makeStep2(), 1, 0);
    auto* right = new QVBoxLayout;
    right->addWidget(makeStep3(), 1);
    right->addWidget(makeStep4());
    right->addWidget(namedButton("Cancel", "cmdCancel"), 0, Qt::AlignRight);
    grid->addLayout(right, 0, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    nameControls();
    fillLists();
    connectControls();
    watchFields();
    showUtcInTips({&as<QDateEdit>("DTPicker_BeginDate"), &as<QTimeEdit>("DTPicker_BeginTime"),
                   &as<QDateEdit>("DTPicker_EndDate"), &as<QTimeEdit>("DTPicker_EndTime"),
                   &as<QComboBox>("cboTimeZone")},
                  variation_.isUtc ? ZoneChoice::MovesPeriod : ZoneChoice::Relabels);
    wizard_.Form_Load();
    labelsFollow();
    control("cmdBrowseDataFiles").setFocus();
    resize(sizeHint());
}

void GridForm::nameControls() {
    for (QWidget* widget : findChildren<QWidget*>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_")))
            controls_.emplace(widget->objectName().toStdString(), widget);
}

QWidget& GridForm::control(const char* name) const { return *controls_.at(name); }

void GridForm::fillLists() {
    FillTimeZones(as<QComboBox>("cboTimeZone"));
    for (std::size_t i = 0; i < stations.rows; ++i)
        addRead(as<QListWidget>("lstStations"), stations.gsStationCol0[i]);
    for (const char* picker : {"DTPicker_BeginDate", "DTPicker_EndDate"})
        as<QDateEdit>(picker).setDate(QDate::currentDate());
    showTime({1, 0, 0}, as<QTimeEdit>("DTPicker_TimeStep"));
}

void GridForm::onClick(const char* name, std::function<void()> action) {
    connect(&as<QAbstractButton>(name), &QAbstractButton::clicked, this, guarded(host_, std::move(action)));
}

void GridForm::connectControls() {
    QListWidget& files = as<QListWidget>(variation_.fileList);
    onClick("cmdBrowseDataFiles", [this] { browseFiles(); });
    onClick("cmdMoveUP", [&files] { ListMoveUp(files); });
    onClick("cmdMoveDOWN", [&files] { ListMoveDown(files); });
    onClick("cmdRemoveSelection", [&files] { ListRemoveSelected(files); });
    onClick("cmdNext1", [this] { wizard_.cmdNext1_Click(); });
    onClick("cmdSetSeasons", [this] { window_.setSeasons(); });
    onClick("cmdSetWindSpeedClasses", [this] { window_.setWindSpeedClasses(); });
    onClick("optByStation", [this] { wizard_.optByStation_Click(); });
    onClick("optByLocation", [this] { wizard_.optByLocation_Click(); });
    onClick("cmdPrevious2", [this] { wizard_.cmdPrevious2_Click(); });
    onClick("cmdNext2", [this] { wizard_.cmdNext2_Click(); });
    onClick("cmdSelectAll", [this] { as<QListWidget>("lstStations").selectAll(); });
    onClick("cmdDeselectAll", [this] { as<QListWidget>("lstStations").clearSelection(); });
    onClick("cmdPrevLocation", [this] { wizard_.cmdPrevLocation_Click(); });
    onClick("cmdNextLocation", [this] { wizard_.cmdNextLocation_Click(); });
    onClick("cmdPrevious3", [this] { wizard_.cmdPrevious3_Click(); });
    onClick("cmdNext3", [this] { wizard_.cmdNext3_Click(); });
    onClick("cmdBrowseDirectory", [this] { browseDirectory(); });
    onClick("cmdPrevious4", [this] { wizard_.cmdPrevious4_Click(); });
    onClick("cmdPROCESS", [this] {
        completeDirectory(as<QLineEdit>("txtOutputDirectory"));
        wizard_.cmdPROCESS_Click();
    });
    onClick("cmdCancel", [this] { reject(); });
    connect(&as<QComboBox>("cboTimeZone"), &QComboBox::activated, this,
            guarded(host_, [this] { wizard_.cboTimeZone_Click(); }));
}

void GridForm::watchFields() {
    for (const auto& [name, widget] : controls_)
        if (qobject_cast<QLineEdit*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr ||
            qobject_cast<QListWidget*>(widget) != nullptr || name == "cmdPROCESS")
            widget->installEventFilter(this);
}

bool GridForm::eventFilter(QObject* watched, QEvent* event) {
    if (leavesField(*event) && watched->isWidgetType())
        guarded(host_, [&] { left(*static_cast<QWidget*>(watched)); })();
    return QDialog::eventFilter(watched, event);
}

void GridForm::left(QWidget& field) {
    if (&field == &control("txtOutputDirectory")) completeDirectory(as<QLineEdit>("txtOutputDirectory"));
    if (&field == &control("cmdPROCESS")) {
        as<QLabel>("lblStatus").clear();
        setReason("");
        setTipOfStatus("");
    }
    clearFilledMark(field, isFilled(field));
}

void GridForm::browseFiles() {
    QListWidget& files = as<QListWidget>(variation_.fileList);
    SelectFiles(host_, files, directory_, variation_.filter);
    clearFilledMark(files, files.count() > 0);
}

void GridForm::openFile(const std::string& path) {
    QListWidget& files = as<QListWidget>(variation_.fileList);
    addFiles({path}, files, directory_);
    clearFilledMark(files, true);
}

void GridForm::browseDirectory() {
    QLineEdit& box = as<QLineEdit>("txtOutputDirectory");
    zg::browseDirectory(host_, box, folderPrompt);
    left(box);
}

bool GridForm::chooseOtherDirectory() {
    QLineEdit& box = as<QLineEdit>("txtOutputDirectory");
    const bool isOther = browseOtherDirectory(host_, box, folderPrompt);
    left(box);
    return isOther;
}

std::string GridForm::text(const char* name) const {
    QWidget& widget = control(name);
    if (const auto* box = qobject_cast<QLineEdit*>(&widget))
        return namesFile(*box) ? pathIn(*box) : typed(box->text());
    if (const auto* combo = qobject_cast<QComboBox*>(&widget)) return typed(combo->currentText());
    if (const auto* frame = qobject_cast<QGroupBox*>(&widget)) return typed(frame->title());
    return typed(as<QLabel>(name).text());
}

void GridForm::setText(const char* name, const std::string& text) {
    QWidget& widget = control(name);
    if (auto* box = qobject_cast<QLineEdit*>(&widget); box != nullptr && namesFile(*box))
        showPath(*box, text);
    else if (box != nullptr)
        box->setText(shown(text));
    else if (auto* combo = qobject_cast<QComboBox*>(&widget))
        combo->setCurrentIndex(combo->findText(shown(text)));
    else if (auto* frame = qobject_cast<QGroupBox*>(&widget))
        frame->setTitle(shown(text));
    else if (auto* button = qobject_cast<QPushButton*>(&widget))
        button->setText(shown(text));
    else
        as<QLabel>(name).setText(shown(text));
}

bool GridForm::checked(const char* option) const { return as<QRadioButton>(option).isChecked(); }

std::vector<std::string> GridForm::rows(const char* list) const {
    const QListWidget& widget = as<QListWidget>(list);
    std::vector<std::string> texts;
    for (int i = 0; i < widget.count(); ++i) texts.push_back(readIn(*widget.item(i)));
    return texts;
}

std::vector<bool> GridForm::selectedRows(const char* list) const {
    const QListWidget& widget = as<QListWidget>(list);
    std::vector<bool> marks(static_cast<std::size_t>(widget.count()));
    for (int i = 0; i < widget.count(); ++i)
        marks[static_cast<std::size_t>(i)] = widget.item(i)->isSelected();
    return marks;
}

int GridForm::row(const char* combo) const { return as<QComboBox>(combo).currentIndex(); }
void GridForm::setRow(const char* combo, int row) { as<QComboBox>(combo).setCurrentIndex(row); }

DateTime GridForm::begin() const {
    return momentIn(as<QDateEdit>("DTPicker_BeginDate"), as<QTimeEdit>("DTPicker_BeginTime"));
}
DateTime GridForm::end() const {
    return momentIn(as<QDateEdit>("DTPicker_EndDate"), as<QTimeEdit>("DTPicker_EndTime"));
}
void GridForm::setBegin(DateTime moment) {
    showMoment(moment, as<QDateEdit>("DTPicker_BeginDate"), as<QTimeEdit>("DTPicker_BeginTime"));
}
void GridForm::setEnd(DateTime moment) {
    showMoment(moment, as<QDateEdit>("DTPicker_EndDate"), as<QTimeEdit>("DTPicker_EndTime"));
}

TimeOfDay GridForm::timeStep() const { return timeIn(as<QTimeEdit>("DTPicker_TimeStep")); }

void GridForm::mark(const char* name, bool invalid) {
    if (invalid)
        MarkInvalid(control(name));
    else
        ClearInvalid(control(name));
}

void GridForm::setEnabled(const char* name, bool enabled) { control(name).setEnabled(enabled); }

void GridForm::setFieldEnabled(const char* name, bool enabled) {
    if (enabled)
        EnableField(control(name));
    else
        DisableField(control(name));
    labelsFollow();
}

void GridForm::setVisible(const char* name, bool visible) { control(name).setVisible(visible); }

void GridForm::focus(const char* name) { control(name).setFocus(); }

void GridForm::setStates(Names plainOff, Names fieldsOff, Names plainOn, Names fieldsOn) {
    const auto widgets = [this](Names names) {
        std::vector<QWidget*> found;
        for (const char* name : names) found.push_back(&control(name));
        return found;
    };
    SetFieldStates(widgets(plainOff), widgets(fieldsOff), widgets(plainOn), widgets(fieldsOn));
    labelsFollow();
    for (const char* button : {"cmdNext1", "cmdNext2", "cmdPROCESS"})
        if (control(button).isEnabled()) as<QPushButton>(button).setDefault(true);
}

/// A label looks like its field.
void GridForm::labelsFollow() {
    for (QLabel* label : findChildren<QLabel*>())
        if (const QWidget* field = label->buddy()) label->setEnabled(field->isEnabled());
}

void GridForm::setBusy(bool busy) { showHourglass(busy); }

void GridForm::setReason(const std::string& text) { as<ReasonLabel>("lblReason").setReason(text); }

void GridForm::setTipOfStatus(const std::string& text) { setPlainTip(control("lblStatus"), text); }

bool GridForm::askProjection() { return frmProjectionInfo(host_, this).exec() == QDialog::Accepted; }

}  // namespace zg
