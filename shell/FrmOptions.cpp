#include "shell/FrmOptions.h"

#include <QRadioButton>
#include <QVBoxLayout>
#include <cmath>

#include "base/AtEnd.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/Pickers.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"
#include "shell/StartSequence.h"

namespace zg {

namespace {

QLineEdit* box(const char* name, bool readOnly = false) {
    auto* made = named(new QLineEdit, name);
    made->setReadOnly(readOnly);
    made->setMinimumWidth(digitsWide(*made, 11));
    made->setMaximumWidth(digitsWide(*made, 15));
    return made;
}

void addRow(QGridLayout& grid, const char* caption, QWidget* field) {
    const int row = grid.rowCount();
    grid.addWidget(labelFor(caption, field), row, 0);
    grid.addWidget(field, row, 1);
}

std::unique_ptr<PolarGraphWidget> makePreview(Host& host, ModPolarGraph& tables) {
    PropertyBag bag;
    bag.WriteProperty("ScrollBars", "0");
    auto preview = std::make_unique<PolarGraphWidget>(host, tables, bag);
    preview->setObjectName(QStringLiteral("pgPreview"));
    preview->graph().shrinkTexts(true);
    preview->setMinimumSize(310, 310);
    return preview;
}

/// Several properties change under one repaint.
template <typename Change>
void changeTogether(PolarGraph& graph, Change change) {
    {
        const AtEnd resumed([&graph] { graph.suspendUpdates(false); });
        graph.suspendUpdates(true);
        change();
    }
    graph.Refresh();
}

/// The positive number in a box; nothing for any other text.
std::optional<float> positive(const QLineEdit& field) {
    try {
        const float value = toSingle(typed(field.text()));
        if (value > 0 && std::isfinite(value)) return value;
    } catch (const RunTimeError&) {
        return std::nullopt;  // the value in force is kept
    }
    return std::nullopt;
}

}  // namespace

frmOptions::frmOptions(Host& host, PolarGraph& graph, QWidget* parent)
    : ApplyDialog(host, "frmOptions", "Options", parent),
      graph_(graph),
      pgPreview(makePreview(host, previewTables_)) {
    previewTables_ = graph.tables();
    preview().Polar(graph.Polar());
    changeTogether(preview(), [&] {
        preview().BackColor(graph.BackColor());
        preview().PictureStyle(graph.PictureStyle());
        preview().Picture(graph.Picture());
    });
    tbsOption = named(new QTabWidget, "tbsOption");
    tbsOption->addTab(makeDetails(), QStringLiteral("D&etails"));
    tbsOption->addTab(makeMisc(), QStringLiteral("&Misc"));
    tbsOption->addTab(makeBackground(), QStringLiteral("&Background"));
    auto* row = new QHBoxLayout;
    row->addWidget(tbsOption);
    row->addWidget(pgPreview.get(), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    QPushButton* cmdDefault = namedButton("&Default", "cmdDefault");
    connect(cmdDefault, &QPushButton::clicked, this, guarded(host_, [this] { cmdDefault_Click(); }));
    addButtons(*layout, cmdDefault);
    showFields();
}

QWidget* frmOptions::makeDetails() {
    auto* page = named(new QFrame, "fraDetails");
    auto* grid = new QGridLayout(page);
    txtUnit = box("txtUnit", true);
    txtRadius = box("txtRadius", true);
    txtDiameter = box("txtDiameter", true);
    txtCircumference = box("txtCircumference", true);
    txtArea = box("txtArea", true);
    txtUnitIn = box("txtUnitIn");
    txtRadiusIn = box("txtRadiusIn");
    txtUnitIn->setToolTip(QStringLiteral("Polar units between two marks of the rulers"));
    txtRadiusIn->setToolTip(QStringLiteral("Percent of the outer ring"));
    addRow(*grid, "&Unit :", txtUnitIn);
    addRow(*grid, "Ma&x % :", txtRadiusIn);
    addRow(*grid, "Unit in &force :", txtUnit);
    addRow(*grid, "Radiu&s : (radius * unit)", txtRadius);
    addRow(*grid, "D&iameter :", txtDiameter);
    addRow(*grid, "Circumfere&nce :", txtCircumference);
    addRow(*grid, "A&rea :", txtArea);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(txtUnitIn, &QLineEdit::editingFinished, this, guarded(host_, [this] { readUnit(); }));
    connect(txtRadiusIn, &QLineEdit::editingFinished, this, guarded(host_, [this] { readRadius(); }));
    return page;
}

QWidget* frmOptions::makeMisc() {
    auto* page = named(new QFrame, "fraMisc");
    auto* grid = new QGridLayout(page);
    chkAuto = named(new QCheckBox(QStringLiteral("Auto")), "chkAuto");
    txtCenterX = box("txtCenterX");
    txtCenterY = box("txtCenterY");
    addRow(*grid, "Or&igin :", chkAuto);
    addRow(*grid, "Center-&X", txtCenterX);
    addRow(*grid, "Center-&Y", txtCenterY);
    grid->addLayout(colourRow("&Grid color", "cmdGridColor", &Polar::GridColor), grid->rowCount(), 0, 1, 2);
    grid->addLayout(colourRow("&Fill color", "cmdFillColor", &Polar::FillColor), grid->rowCount(), 0, 1, 2);
    grid->addLayout(colourRow("&Label color", "cmdLabelColor", &Polar::LabelColor), grid->rowCount(), 0, 1,
                    2);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(chkAuto, &QCheckBox::toggled, this, guarded(host_, [this] { readOrigin(); }));
    for (QLineEdit* field : {txtCenterX, txtCenterY})
        connect(field, &QLineEdit::editingFinished, this, guarded(host_, [this] { readOrigin(); }));
    return page;
}

QLayout* frmOptions::colourRow(const char* caption, const char* name, Colour Polar::*colour) {
    auto* swatch = new ColourBox(preview().Polar().*colour);
    swatch->setAccessibleName(spoken(QString::fromLatin1(caption)) + QStringLiteral(" on show"));
    swatch->setObjectName(QString::fromLatin1(name).replace(QLatin1String("cmd"), QLatin1String("pic")));
    QPushButton* button = namedButton(caption, name);
    colours_.emplace_back(swatch, colour);
    swatch->asks(host_, button, [this, colour](Colour picked) {
        preview().Polar().*colour = picked;
        preview().Refresh();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(swatch);
    row->addWidget(button);
    row->addStretch();
    return row;
}

QWidget* frmOptions::makeBackground() {
    auto* page = named(new QFrame, "fraBk");
    auto* column = new QVBoxLayout(page);
    picBkColor = named(new ColourBox(preview().BackColor()), "picBkColor");
    picBkColor->setAccessibleName(QStringLiteral("Background color on show"));
    QPushButton* cmdBkColor = namedButton("Background colo&r...", "cmdBkColor");
    QPushButton* cmdBitmap = namedButton("Bi&tmap...", "cmdBitmap");
    QPushButton* cmdClear = namedButton("Clear Bitma&p", "cmdClear");
    for (QWidget* each : std::initializer_list<QWidget*>{picBkColor, cmdBkColor, cmdBitmap, cmdClear})
        column->addWidget(each);
    optBmp = new QButtonGroup(this);
    int style = 0;
    for (const char* caption : {"N&one", "Ce&nter", "&Stretch", "Ti&le"}) {
        auto* option = named(new QRadioButton(QString::fromLatin1(caption)), "optBmp");
        option->setObjectName(QStringLiteral("optBmp_%1").arg(style));
        optBmp->addButton(option, style++);
        column->addWidget(option);
    }
    column->addStretch();
    picBkColor->asks(host_, cmdBkColor, [this](Colour picked) { preview().BackColor(picked); });
    connect(cmdBitmap, &QPushButton::clicked, this, guarded(host_, [this] { cmdBitmap_Click(); }));
    connect(cmdClear, &QPushButton::clicked, this, guarded(host_, [this] {
                preview().Picture(nullptr);
                preview().Refresh();
            }));
    connect(optBmp, &QButtonGroup::idToggled, this, guarded(host_, [this](int id, bool chosen) {
                if (chosen) preview().PictureStyle(id);
            }));
    return page;
}

void frmOptions::showDetails() {
    const Polar& polar = preview().Polar();
    txtUnit->setText(shown(singleText(polar.Unit)));
    txtRadius->setText(shown(singleText(polar.Radius * polar.Unit)));
    txtDiameter->setText(shown(singleText(polar.Diameter())));
    txtCircumference->setText(shown(singleText(polar.Circumference())));
    txtArea->setText(shown(singleText(polar.Area())));
}

void frmOptions::showFields() {
    const Polar& polar = preview().Polar();
    txtUnitIn->setText(shown(singleText(polar.Unit)));
    txtRadiusIn->setText(shown(doubleText(static_cast<double>(polar.Radius) * percentPerUnit)));
    chkAuto->setChecked(polar.Origin.Auto);
    txtCenterX->setText(shown(singleText(polar.Origin.X)));
    txtCenterY->setText(shown(singleText(polar.Origin.Y)));
    for (QLineEdit* field : {txtCenterX, txtCenterY}) field->setEnabled(!polar.Origin.Auto);
    for (const auto& [swatch, colour] : colours_) swatch->setColour(polar.*colour);
    picBkColor->setColour(preview().BackColor());
    if (QAbstractButton* option = optBmp->button(preview().PictureStyle())) option->setChecked(true);
    showDetails();
}

void frmOptions::readUnit() {
    if (const auto unit = positive(*txtUnitIn)) preview().Polar().Unit = *unit;
    preview().Refresh();
    showFields();
}

void frmOptions::readRadius() {
    const auto percent = positive(*txtRadiusIn);
    if (percent && *percent <= 100) preview().Polar().Radius = *percent / static_cast<float>(percentPerUnit);
    preview().Refresh();
    showFields();
}

void frmOptions::readOrigin() {
    Origin& origin = preview().Polar().Origin;
    origin.Auto = chkAuto->isChecked();
    try {
        origin.SetPos(toSingle(typed(txtCenterX->text())), toSingle(typed(txtCenterY->text())));
    } catch (const RunTimeError&) {
        // the values in force are kept, and the boxes show them again
    }
    preview().Refresh();
    showFields();
}

void frmOptions::cmdBitmap_Click() {
    const std::string path = ShowFileOpen(host_, pictureFilter, 1, "");
    if (!path.empty()) preview().Picture(loadPicture(path));
}

void frmOptions::cmdDefault_Click() {
    preview().Polar(Polar());
    changeTogether(preview(), [this] {
        preview().BackColor(white);
        preview().Picture(nullptr);
        preview().PictureStyle(0);
    });
    showFields();
}

void frmOptions::apply() {
    const Polar& from = preview().Polar();
    Polar& to = graph_.Polar();
    to.Radius = from.Radius;
    to.Unit = from.Unit;
    to.Origin.Auto = from.Origin.Auto;
    to.Origin.SetPos(from.Origin.X, from.Origin.Y);
    to.GridColor = from.GridColor;
    to.FillColor = from.FillColor;
    to.LabelColor = from.LabelColor;
    changeTogether(graph_, [this] {
        graph_.BackColor(preview().BackColor());
        graph_.PictureStyle(preview().PictureStyle());
        graph_.Picture(preview().Picture());
    });
    keepBackgroundPicture();
}

/// The next start finds the picture by its name, which gives its style.
void frmOptions::keepBackgroundPicture() {
    removeBackgroundPictures();
    const auto picture = std::dynamic_pointer_cast<const QtPicture>(graph_.Picture());
    if (!picture) return;
    const std::string path = newBackgroundPicturePath(graph_.PictureStyle());
    if (!picture->image().save(fileName(path), "BMP")) zg::raise(ErrorNumber::PathFileAccessError);
}

}  // namespace zg
