#include "shell/FrmGuide.h"

#include <QImage>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr QSize guideSize(860, 800);
constexpr int widestPicture = 800;

/// A browser in which wide pictures fit.
class GuideText : public QTextBrowser {
 public:
    QVariant loadResource(int type, const QUrl& name) override {
        const QVariant found = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource) return found;
        const QImage picture = QImage::fromData(found.toByteArray());
        if (picture.width() <= widestPicture) return found;
        return picture.scaledToWidth(widestPicture, Qt::SmoothTransformation);
    }
};

}  // namespace

frmGuide::frmGuide(const std::string& path, QWidget* parent) : QDialog(parent) {
    nameForm(*this, "frmGuide", "User Guide");
    setModal(false);
    txtGuide = named(new GuideText, "txtGuide");
    txtGuide->setAccessibleName(windowTitle());
    txtGuide->setOpenExternalLinks(true);
    cmdBack = namedButton("&Back", "cmdBack");
    cmdBack->setEnabled(false);
    cmdClose = namedButton("&Close", "cmdClose");
    cmdClose->setDefault(true);
    connect(cmdBack, &QPushButton::clicked, txtGuide, &QTextBrowser::backward);
    connect(txtGuide, &QTextBrowser::backwardAvailable, cmdBack, &QPushButton::setEnabled);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdBack);
    buttons->addStretch();
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtGuide, 1);
    layout->addLayout(buttons);
    txtGuide->setSource(QUrl::fromLocalFile(fileName(path)));
    txtGuide->setFocus();
    const QScreen* on = screen();
    resize(on == nullptr ? guideSize : guideSize.boundedTo(on->availableSize() - QSize(40, 60)));
}

}  // namespace zg
