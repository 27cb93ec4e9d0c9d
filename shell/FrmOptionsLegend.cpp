#include "shell/FrmOptionsLegend.h"

#include <QVBoxLayout>

#include "base/Text.h"
#include "graph/frq/ClassLimits.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

frmOptionsLegend::frmOptionsLegend(Host& host, PolarGraph& graph, QWidget* parent)
    : ApplyDialog(host, "frmOptionsLegend", "Edit Wind Speed Classes Legend", parent),
      graph_(graph),
      colours_(modPolarGraph.WindClassColor) {
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < classCount; ++i)
        grid->addWidget(makeClass(i), static_cast<int>(i % 3), static_cast<int>(i / 3));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(makeUnits());
    auto* cmdDefault = namedButton("&Default", "cmdDefault");
    connect(cmdDefault, &QPushButton::clicked, this, [this] {
        const auto factory = factoryWindClassColor();
        for (std::size_t i = 0; i < classCount; ++i) setColour(i, factory[i]);
    });
    layout->addStretch();
    addButtons(*layout, cmdDefault);
    showRanges();
}

QGroupBox* frmOptionsLegend::makeClass(std::size_t i) {
    auto* frame = new QGroupBox(QStringLiteral("Wind Speed Class &%1:").arg(i + 1));
    const auto label = [i](const char* end) {
        return named(new QLabel, QStringLiteral("lblClass%1_").arg(i + 1) + QLatin1String(end));
    };
    minimum_[i] = label("Min");
    maximum_[i] = label("Max");
    picClassColor[i] =
        named(new ColourBox(paintedColour(colours_[i])), QStringLiteral("picClassColor_%1").arg(i));
    picClassColor[i]->setAccessibleName(spoken(frame->title()) + QStringLiteral(" color"));
    auto* cmdClassColor =
        named(new QPushButton(QStringLiteral("Color...")), QStringLiteral("cmdClassColor_%1").arg(i));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(minimum_[i]);
    if (i + 1 < classCount) {
        row->addWidget(new QLabel(QStringLiteral("to")));
        row->addWidget(maximum_[i]);
    } else {
        maximum_[i]->setText(QStringLiteral("and more"));
        row->addWidget(maximum_[i]);
    }
    row->addStretch();
    picClassColor[i]->asks(host_, cmdClassColor,
                           [this, i](Colour colour) { setColour(i, static_cast<float>(colour)); });
    row->addWidget(picClassColor[i]);
    row->addWidget(cmdClassColor);
    return frame;
}

QGroupBox* frmOptionsLegend::makeUnits() {
    auto* frame = new QGroupBox(QStringLiteral("Units for Wind Speed:"));
    optMetersPerSecond = named(new QRadioButton(QStringLiteral("&meters per second")), "optMetersPerSecond");
    optKnots = named(new QRadioButton(QStringLiteral("&knots")), "optKnots");
    optMetersPerSecond->setChecked(modPolarGraph.ClassesFromFile);
    optKnots->setChecked(modPolarGraph.ClassesInKnots && !modPolarGraph.ClassesFromFile);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(optMetersPerSecond);
    row->addWidget(optKnots);
    row->addStretch();
    for (QRadioButton* each : {optMetersPerSecond, optKnots})
        connect(each, &QRadioButton::toggled, this, guarded(host_, [this](bool chosen) {
                    if (chosen) showRanges();
                }));
    return frame;
}

void frmOptionsLegend::setColour(std::size_t i, float colour) {
    colours_[i] = colour;
    picClassColor[i]->setColour(paintedColour(colour));
}

/// The ranges in the chosen unit; empty before a file has been loaded.
void frmOptionsLegend::showRanges() {
    const bool knots = optKnots->isChecked();
    if (knots && modPolarGraph.FrqLoaded && !modPolarGraph.KnotTableReady) buildKnotTable(modPolarGraph);
    const Table<std::string>& limits = knots ? modPolarGraph.KnotClassLimit : modPolarGraph.FrqClassLimit;
    const QString unit = knots ? QStringLiteral(" knots") : QStringLiteral(" m/s");
    const auto text = [&](std::size_t i) {
        return i < limits.size() ? shown(trim(limits(static_cast<std::int64_t>(i)))) + unit : QString();
    };
    for (std::size_t i = 0; i < classCount; ++i) {
        minimum_[i]->setText(text(i + 1));
        if (i + 1 < classCount) maximum_[i]->setText(text(i + 2));
    }
}

void frmOptionsLegend::apply() {
    modPolarGraph.ClassesFromFile = optMetersPerSecond->isChecked();
    modPolarGraph.ClassesInKnots = optKnots->isChecked();
    modPolarGraph.WindClassColor = colours_;
    graph_.Refresh();
}

}  // namespace zg
