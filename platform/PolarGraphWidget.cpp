#include "platform/PolarGraphWidget.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <QWheelEvent>

#include "platform/Errors.h"
#include "platform/PageWidget.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"
#include "platform/RulerWidget.h"

namespace zg {

namespace {

const QColor workAreaColour(160, 160, 160);
const QColor shadowColour(96, 96, 96);

QWidget* plainSurface(QWidget* parent, const char* name, const QColor& colour) {
    auto* surface = new QWidget(parent);
    surface->setObjectName(QString::fromLatin1(name));
    surface->setAutoFillBackground(true);
    surface->setPalette(QPalette(colour));
    return surface;
}

void place(QWidget& widget, const ChildSurface& surface) {
    widget.setGeometry(surface.left, surface.top, surface.width, surface.height);
    widget.setVisible(surface.visible);
}

}  // namespace

PolarGraphWidget::PolarGraphWidget(Host& host, ModPolarGraph& tables, const PropertyBag& designed,
                                   QWidget* parent)
    : QWidget(parent),
      host_(host),
      picShadow_(plainSurface(this, "picShadow", shadowColour)),
      picGraph_(new PageWidget(*this)),
      hsScroll_(new QScrollBar(Qt::Horizontal, this)),
      vsScroll_(new QScrollBar(Qt::Vertical, this)),
      picScroll_(new QWidget(this)),
      lblTrackAngle_(new QLabel(picGraph_)),
      picHolderRH_(new QWidget(this)),
      picHolderRV_(new QWidget(this)),
      picRulerH_(new RulerWidget(*this, RulerPart::Top, picHolderRH_)),
      picRulerV_(new RulerWidget(*this, RulerPart::Left, picHolderRV_)),
      picRulerJ_(new RulerWidget(*this, RulerPart::Corner, this)) {
    hsScroll_->setObjectName(QStringLiteral("hsScroll"));
    vsScroll_->setObjectName(QStringLiteral("vsScroll"));
    picScroll_->setObjectName(QStringLiteral("picScroll"));
    picScroll_->setAutoFillBackground(true);
    lblTrackAngle_->setObjectName(QStringLiteral("lblTrackAngle"));
    lblTrackAngle_->setAutoFillBackground(true);  // its text has the theme's colour, the page a fixed one
    lblTrackAngle_->move(6, 6);
    lblTrackAngle_->hide();
    picHolderRH_->setObjectName(QStringLiteral("picHolderRH"));
    picHolderRV_->setObjectName(QStringLiteral("picHolderRV"));
    picRulerJ_->setToolTip(QString::fromLatin1(PolarGraph::cornerToolTip));
    for (QScrollBar* bar : {hsScroll_, vsScroll_})
        connect(bar, &QScrollBar::valueChanged, this, guarded(host_, [this] { scrolled(); }));
    // Only this class may use itself as the ControlWindow.
    graph_ = std::make_unique<PolarGraph>(static_cast<ControlWindow&>(*this), host_, tables, designed);
    layoutChanged();
}

PolarGraphWidget::~PolarGraphWidget() { endPainting(); }

const QImage& PolarGraphWidget::pageImage() {
    endPainting();
    return page_;
}

Canvas& PolarGraphWidget::pageCanvas() {
    if (page_.isNull()) pageResized(1, 1);
    if (!canvas_) {
        const QSizeF units = page_.deviceIndependentSize();
        canvas_ = std::make_unique<QtCanvas>(page_, units.width(), units.height());
    }
    return *canvas_;
}

void PolarGraphWidget::pageResized(int width, int height) {
    endPainting();
    kept_ = QImage();
    page_ = makePageImage(width, height, devicePixelRatioF());
}

void PolarGraphWidget::keepPicture() {
    endPainting();
    kept_ = page_;
}

bool PolarGraphWidget::restorePicture() {
    if (kept_.isNull()) return false;
    endPainting();
    page_ = kept_;
    return true;
}

void PolarGraphWidget::layoutChanged() {
    if (!graph_) return;  // the control arranges its children in its constructor
    const ChildSurfaces& surfaces = graph_->surfaces();
    place(*picShadow_, surfaces.picShadow);
    place(*picGraph_, surfaces.picGraph);
    place(*picScroll_, surfaces.picScroll);
    place(*picHolderRH_, surfaces.picHolderRH);
    place(*picHolderRV_, surfaces.picHolderRV);
    place(*picRulerH_, surfaces.picRulerH);
    place(*picRulerV_, surfaces.picRulerV);
    place(*picRulerJ_, surfaces.picRulerJ);
    placeScrollBar(*hsScroll_, surfaces.hsScroll, graph_->horizontalScroll());
    placeScrollBar(*vsScroll_, surfaces.vsScroll, graph_->verticalScroll());
}

void PolarGraphWidget::placeScrollBar(QScrollBar& bar, const ChildSurface& surface,
                                      const ScrollRange& range) {
    const QSignalBlocker quiet(bar);
    bar.setRange(range.minimum, range.maximum);
    bar.setSingleStep(range.smallChange);
    bar.setPageStep(range.largeChange);
    bar.setValue(range.value);
    place(bar, surface);
}

void PolarGraphWidget::pagePainted() {
    endPainting();
    picGraph_->update();
}

void PolarGraphWidget::shapesChanged() {
    if (!graph_) return;
    const ChildSurfaces& surfaces = graph_->surfaces();
    picGraph_->showShapes(surfaces);
    picRulerH_->showTrackingLine(surfaces.linRulerH);
    picRulerV_->showTrackingLine(surfaces.linRulerV);
}

void PolarGraphWidget::rulersChanged() {
    for (RulerWidget* ruler : {picRulerH_, picRulerV_, picRulerJ_}) ruler->update();
}

void PolarGraphWidget::pointerChanged() {
    if (graph_) picGraph_->showPointer(graph_->MousePointer(), graph_->MouseIcon());
}

void PolarGraphWidget::showAbout(const std::string& title) { emit aboutRequested(shown(title)); }

void PolarGraphWidget::trackAngleChanged(const std::string& text) {
    lblTrackAngle_->setText(shown(text));
    lblTrackAngle_->adjustSize();
    lblTrackAngle_->setVisible(!text.empty());
}

PicturePointer PolarGraphWidget::loadPicture(const std::string& path) { return loadMarkerPicture(path); }

void PolarGraphWidget::resizeEvent(QResizeEvent*) {
    guarded(host_, [this] { graph_->layout(width(), height()); })();
}

void PolarGraphWidget::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), workAreaColour);
    followScreen();
}

void PolarGraphWidget::followScreen() {
    if (qFuzzyCompare(page_.devicePixelRatio(), devicePixelRatioF())) return;
    // The window has moved to a screen of another resolution: the page is redrawn, never scaled.
    QTimer::singleShot(0, this, guarded(host_, [this] {
                           const QSizeF units = page_.deviceIndependentSize();
                           pageResized(qRound(units.width()), qRound(units.height()));
                           graph_->Refresh();
                       }));
}

void PolarGraphWidget::setInvitation(const QString& text) {
    if (text == invitation_) return;
    invitation_ = text;
    picGraph_->update();
}

void PolarGraphWidget::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        if (turned != 0) emit zoomTurned(turned > 0 ? 1 : -1);
        return;
    }
    QScrollBar* bar = event->modifiers().testFlag(Qt::ShiftModifier) ? hsScroll_ : vsScroll_;
    if (bar->isVisible()) QCoreApplication::sendEvent(bar, event);
}

void PolarGraphWidget::scrolled() { graph_->scrollTo(hsScroll_->value(), vsScroll_->value()); }

}  // namespace zg
