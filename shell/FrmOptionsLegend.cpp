#include "shell/FrmOptionsLegend.h"

#include <QVBoxLayout>

#include "base/Text.h"
#include "graph/frq/ClassLimits.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
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
    auto* cmdDefault = new QPushButton(QStringLiteral("&Default"));
    cmdDefault->setObjectName(QStringLiteral("cmdDefault"));
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
        auto* made = new QLabel;
        made->setObjectName(QStringLiteral("lblClass%1_").arg(i + 1) + QLatin1String(end));
        return made;
    };
    minimum_[i] = label("Min");
    maximum_[i] = label("Max");
    picClassColor[i] = new ColourBox(paintedColour(colours_[i]));
    picClassColor[i]->setObjectName(QStringLiteral("picClassColor_%1").arg(i));
    picClassColor[i]->setAccessibleName(spoken(frame->title()) + QStringLiteral(" color"));
    auto* cmdClassColor = new QPushButton(QStringLiteral("Color..."));
    cmdClassColor->setObjectName(QStringLiteral("cmdClassColor_%1").arg(i));
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
    const auto pick = guarded(host_, [this, i] {
        if (const auto colour = host_.pickColour(paintedColour(colours_[i])))
            setColour(i, static_cast<float>(*colour));
    });
    for (QPushButton* each : {static_cast<QPushButton*>(picClassColor[i]), cmdClassColor}) {
        row->addWidget(each);
        connect(each, &QPushButton::clicked, this, pick);
    }
    return frame;
}

QGroupBox* frmOptionsLegend::makeUnits() {
    auto* frame = new QGroupBox(QStringLiteral("Units for Wind Speed:"));
    optMetersPerSecond = new QRadioButton(QStringLiteral("&meters per second"));
    optMetersPerSecond->setObjectName(QStringLiteral("optMetersPerSecond"));
    optKnots = new QRadioButton(QStringLiteral("&knots"));
    optKnots->setObjectName(QStringLiteral("optKnots"));
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
