#include "shell/FontChoice.h"

#include <QHBoxLayout>

#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReasonLabel.h"

namespace zg {

FontChoice::FontChoice(Host& host, const FontRecord& font, const FontRecord& factory,
                       const std::string& suffix, const Captions& captions)
    : font_(font), sample_(new QLabel) {
    QPushButton* cmdSelectFont = namedButton(captions.font, ("cmdSelectFont" + suffix).c_str());
    QPushButton* cmdSelectColor = namedButton(captions.colour, ("cmdSelectColor" + suffix).c_str());
    QPushButton* cmdReset = namedButton(captions.reset, ("cmdResetToDefaults" + suffix).c_str());
    sample_->setObjectName(QString::fromStdString("lblSample" + suffix));
    sample_->setTextFormat(Qt::PlainText);
    sample_->setAutoFillBackground(true);
    sample_->setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* each : {cmdSelectFont, cmdSelectColor, cmdReset}) row->addWidget(each);
    row->addWidget(sample_, 1);
    QObject::connect(cmdSelectFont, &QPushButton::clicked, this, guarded(host, [this, &host] {
                         const auto picked = host.pickFont(font_);
                         if (!picked) return;
                         const float colour = font_.colour;
                         font_ = *picked;
                         font_.colour = colour;
                         showSample();
                     }));
    QObject::connect(cmdSelectColor, &QPushButton::clicked, this, guarded(host, [this, &host] {
                         const auto picked = host.pickColour(paintedColour(font_.colour));
                         if (!picked) return;
                         font_.colour = static_cast<float>(*picked);
                         showSample();
                     }));
    QObject::connect(cmdReset, &QPushButton::clicked, this, [this, factory] {
        font_ = factory;
        showSample();
    });
    showSample();
}

void FontChoice::showSample() {
    QFont face(shown(font_.name));
    if (font_.size > 0) face.setPointSize(font_.size);
    face.setBold(font_.bold);
    face.setItalic(font_.italic);
    sample_->setFont(face);
    QPalette colours(Qt::white);
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, toQColor(paintedColour(font_.colour)));
    sample_->setPalette(colours);
    sample_->setText(shown(font_.name) + QLatin1Char(' ') + QString::number(font_.size));
    sample_->setToolTip(plainTip(sample_->text()));
    // The dialog grows with it; of a text that is larger still at least the beginning is shown.
    const QSize whole = sample_->sizeHint();
    const QSize largest(420, 90);
    sample_->setMinimumSize(whole.expandedTo(QSize(150, 30)).boundedTo(largest));
    sample_->setAlignment(Qt::AlignVCenter |
                          (whole.width() > largest.width() ? Qt::AlignLeft : Qt::AlignHCenter));
}

}  // namespace zg
