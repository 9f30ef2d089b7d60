// A bound list and its data control.
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "platform/forms/db_list.h"
#include "tests/forms/grid_fixture.h"

namespace {

class BoundList : public ::testing::Test {
protected:
    BoundList() {
        list.setDataSource(&source);
        list.setListField("Number");
        list.resize(200, 150);
        list.show();
    }

    DataControl source;
    DBList list;
};

} // namespace

TEST_F(BoundList, ReadsOnlyTheItemsOnTheScreen) {
    const auto rows = std::make_shared<MadeRows>(32767);
    source.setRecordset(std::make_shared<Recordset>(rows));
    QTest::qWait(0);
    list.grab();
    EXPECT_FALSE(rows->rowsRead.empty());
    EXPECT_LT(rows->rowsRead.size(), 20u);
    source.recordset()->MoveLast();
    list.grab();
    EXPECT_TRUE(rows->rowsRead.count(32766));
    EXPECT_LT(rows->rowsRead.size(), 40u);
}

TEST_F(BoundList, FollowsAndMovesTheRecordset) {
    EXPECT_EQ(list.Text(), "");
    source.setRecordset(madeRecordset(50));
    EXPECT_EQ(list.Text(), "number 0");
    QSignalSpy repositions(&source, &DataControl::Reposition);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 1);
    EXPECT_EQ(repositions.count(), 1);

    source.recordset()->FindFirst("30");
    list.Refresh();
    EXPECT_EQ(list.Text(), "number 30");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())));

    QSignalSpy doubles(&list, &DBList::DblClick);
    const QPoint first = list.visualRect(list.model()->index(29, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(doubles.count(), 1);
    EXPECT_EQ(source.recordset()->AbsolutePosition(), 29);

    list.setListField("date");
    EXPECT_EQ(list.Text(), "date 29");
    list.setListField("notThere");
    EXPECT_EQ(list.Text(), "");
    source.setRecordset(madeRecordset(0));
    EXPECT_EQ(list.Text(), "");
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(doubles.count(), 1);
}
