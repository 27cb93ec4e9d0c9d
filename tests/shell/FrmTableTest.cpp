#include "shell/FrmTable.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTest>

#include "base/RunTimeError.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmTable : public ::testing::Test {
 protected:
    void open() {
        form_ = std::make_unique<frmTable>(host_, graph_, QPixmap(46, 18), [this] { ++told_; });
        form_->show();
        form_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    QTreeView& rows() { return *form_->findChild<QTreeView*>("lvwData"); }
    QString cell(int row, int column) { return rows().model()->index(row, column).data().toString(); }
    void click(const char* name) {
        QTest::mouseClick(form_->findChild<QWidget*>(QString::fromLatin1(name)), Qt::LeftButton);
    }

    GrapInfo graph_ = [] {
        GrapInfo graph;
        graph.Equation = "2";
        graph.Step = 90;
        return graph;
    }();
    TestHost host_;
    int told_ = 0;
    std::unique_ptr<frmTable> form_;
};

TEST_F(FrmTable, AStepOf90GivesFiveRowsWithBothEnds) {
    open();
    ASSERT_EQ(rows().model()->rowCount(), 5);
    EXPECT_EQ(told_, 5);
    const QString degree = QChar(176);
    EXPECT_EQ(cell(0, 0), "1");
    EXPECT_EQ(cell(0, 1), "0" + degree);
    EXPECT_EQ(cell(0, 2), "2");
    EXPECT_EQ(cell(0, 3), "0");
    EXPECT_EQ(cell(0, 4), "2");
    EXPECT_EQ(cell(1, 1), "90" + degree);
    EXPECT_EQ(cell(1, 3), "2") << "y grows upwards";
    EXPECT_EQ(cell(4, 0), "5");
    EXPECT_EQ(cell(4, 1), "360" + degree);
}

TEST_F(FrmTable, HasItsHeadings) {
    open();
    const QStringList titles = {"", "Angle", "X", "Y", "Radius"};
    for (int column = 0; column < 5; ++column)
        EXPECT_EQ(rows().model()->headerData(column, Qt::Horizontal).toString(), titles[column]);
}

TEST_F(FrmTable, CopiesTheSelectedRowsAsTabSeparatedText) {
    open();
    rows().selectionModel()->select(rows().model()->index(4, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    rows().selectionModel()->select(rows().model()->index(1, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    click("cmdCopy");
    const QString degree = QChar(176);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "2\t90" + degree + "\t0\t2\t2\r\n5\t360" + degree + "\t2\t0\t2\r\n");
}

TEST_F(FrmTable, AClickOnTheFirstHeadingSelectsAll) {
    open();
    QHeaderView& header = *rows().header();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, header.height() / 2));
    EXPECT_EQ(rows().selectionModel()->selectedRows().size(), 5);
    rows().clearSelection();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header.sectionPosition(2) + 5, header.height() / 2));
    EXPECT_EQ(rows().selectionModel()->selectedRows().size(), 0);
    click("cmdSelectAll");
    EXPECT_EQ(rows().selectionModel()->selectedRows().size(), 5);
}

TEST_F(FrmTable, TheColumnsShareTheWidthEqually) {
    open();
    form_->resize(700, 400);
    QCoreApplication::processEvents();
    for (int column = 0; column < 5; ++column)
        EXPECT_EQ(rows().columnWidth(column), rows().viewport()->width() / 5);
}

TEST_F(FrmTable, TheEquationIsEvaluatedTwiceARow) {
    graph_.Coefficient = "n=0: Function f: n=n+1: f=n: End Function";
    graph_.Equation = "f()";
    graph_.Step = 360;
    open();
    EXPECT_EQ(cell(0, 2), "1") << "the first call gives x";
    EXPECT_EQ(cell(1, 2), "3") << "after the second gave y";
}

TEST_F(FrmTable, AStepOfZeroIsADivisionByZero) {
    graph_.Step = 0;
    EXPECT_THROW(open(), RunTimeError);
}

TEST_F(FrmTable, ExitCloses) {
    open();
    QTest::keyClick(form_.get(), Qt::Key_X, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form_->isVisible(); }));
}

}  // namespace
}  // namespace zg
