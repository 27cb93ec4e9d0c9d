// F1, and the window of the user guide.

#include "shell/FrmGuide.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QKeyEvent>
#include <QPointer>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <filesystem>

#include "tests/shell/MainWindow.h"

namespace zg {
namespace {

constexpr const char* guidePath = ZG_SOURCE_DIR "/docs/guide.md";

class GuideKey : public ActiveMainWindow {
 protected:
    void deliverGuide() const {
        std::filesystem::create_directory(directory_.file("docs"));
        std::filesystem::copy(guidePath, directory_.file("docs/guide.md"));
    }
    frmGuide* guide() const {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* form = qobject_cast<frmGuide*>(widget); form != nullptr && form->isVisible())
                return form;
        return nullptr;
    }
};

TEST_F(GuideKey, OpensTheGuideBesideTheWindowOnce) {
    deliverGuide();
    QTest::keyClick(child("picGraph"), Qt::Key_F1);
    frmGuide* shown = guide();
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(shown->isModal());
    EXPECT_TRUE(shown->findChild<QTextBrowser*>("txtGuide")->toPlainText().startsWith("User guide"));
    QTest::keyClick(child("txtCoefficient"), Qt::Key_F1);
    EXPECT_EQ(guide(), shown) << "the same one, from a text box too";
    EXPECT_EQ(box("txtCoefficient").text(), "");
    QTest::keyClick(shown, Qt::Key_Escape);
    EXPECT_EQ(guide(), nullptr);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(GuideKey, WorksInADialogAndTheGuideCanBeReadThere) {
    deliverGuide();
    bool usable = false;
    QTimer::singleShot(0, window_.get(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        QTest::keyClick(dialog, Qt::Key_F1);
        if (frmGuide* shown = guide()) {
            EXPECT_EQ(shown->parentWidget(), dialog) << "a dialog that waits blocks all windows but its own";
            QTest::mouseClick(shown->findChild<QWidget*>("cmdClose"), Qt::LeftButton);
            usable = guide() == nullptr;
        }
        qobject_cast<QDialog*>(dialog)->reject();
    });
    entry("mnuSetSeasons").trigger();
    EXPECT_TRUE(usable);
}

TEST_F(GuideKey, InADialogReplacesTheGuideThatIsOpenAlready) {
    deliverGuide();
    QTest::keyClick(child("picGraph"), Qt::Key_F1);
    const QPointer<frmGuide> first = guide();
    ASSERT_FALSE(first.isNull());
    bool isReplaced = false;
    QTimer::singleShot(0, window_.get(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QCoreApplication::sendEvent(first, &key);
        EXPECT_FALSE(first.isNull()) << "the receiver of a key lives until the key has been served";
        const frmGuide* shown = guide();
        isReplaced = shown != nullptr && shown != first && shown->parentWidget() == dialog;
        qobject_cast<QDialog*>(dialog)->reject();
    });
    entry("mnuSetSeasons").trigger();
    EXPECT_TRUE(isReplaced);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
}

TEST_F(GuideKey, HeldDownOpensNothingMore) {
    deliverGuide();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(child("picGraph"), &repeated);
    EXPECT_EQ(guide(), nullptr);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(GuideKey, WithoutTheGuideSaysWhereItWasExpected) {
    host_.boxAnswers = {BoxAnswer::Ok};
    QTest::keyClick(child("picGraph"), Qt::Key_F1);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text,
              "The user guide is missing: " + directory_.file("docs") + pathSeparator + "guide.md");
    EXPECT_EQ(guide(), nullptr);
}

TEST(FrmGuide, ShowsItsPicturesAndFollowsItsLinksAndBack) {
    frmGuide form(guidePath);
    auto& text = *form.findChild<QTextBrowser*>("txtGuide");
    int pictures = 0;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (!part.fragment().charFormat().isImageFormat()) continue;
            const QString name = part.fragment().charFormat().toImageFormat().name();
            const QVariant found = text.loadResource(QTextDocument::ImageResource, name);
            const QImage picture =
                found.canConvert<QImage>() ? found.value<QImage>() : QImage::fromData(found.toByteArray());
            EXPECT_FALSE(picture.isNull()) << name.toStdString();
            EXPECT_LE(picture.width(), 800) << name.toStdString();
            ++pictures;
        }
    EXPECT_GT(pictures, 30);
    auto& back = *form.findChild<QPushButton*>("cmdBack");
    EXPECT_FALSE(back.isEnabled());
    text.setSource(text.source().resolved(QUrl(QStringLiteral("formulas.md"))));
    EXPECT_TRUE(text.toPlainText().contains(QLatin1String("RGB")));
    EXPECT_TRUE(back.isEnabled());
    back.click();
    EXPECT_TRUE(text.toPlainText().startsWith(QLatin1String("User guide")));
}

}  // namespace
}  // namespace zg
