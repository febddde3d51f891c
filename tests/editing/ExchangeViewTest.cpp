#include "editing/ExchangeView.h"
#include "support/Book.h"

#include <QTest>

namespace kovamo {
namespace {

/// The sheet's title, lines and choices once nothing is under way.
std::string said(const ExchangeView& view) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isBusy(); }, 30000));
    return (QStringList(view.title()) + view.lines() + view.details() + view.choices())
        .join(u'\n')
        .toStdString();
}

TEST(ExchangeView, TakesOutBringsInAndGoesBack) {
    Book book({{5}, {4}});
    book.context.setAutomaticallyMergesChangesFromParent(true);
    ExchangeView view(book.context.storePath());
    const QString file = World::folder() + u"/out.csv";
    view.exportTo(file, false);
    EXPECT_EQ(said(view), "Exported\nTransactions: 2\nout.csv");
    QFile(file).resize(0);
    view.exportTo(file, false);
    EXPECT_EQ(said(view), "Export\nout.csv\nThere is a file of this name already.");
    EXPECT_EQ(QFileInfo(file).size(), 0) << "nobody has agreed";
    view.proceed();
    EXPECT_EQ(said(view), "Exported\nTransactions: 2\nout.csv");

    book.context.deleteObject(*book.all().front());
    book.context.save();
    QFile more(file);
    ASSERT_TRUE(more.open(QFile::Append) && more.write("x\r\n"));
    more.close();
    view.importFrom(file);
    EXPECT_EQ(said(view), "Import\nout.csv\nNew: 1\nChanged: 0\nAlready here: 1\n"
                          "Lines that cannot be read: 1\nLine 4: There are 1 fields, and 11 in "
                          "the header");
    EXPECT_EQ(book.all().size(), 1U) << "it is only looked at";
    view.proceed();
    EXPECT_EQ(said(view), "Imported\nNew: 1\nChanged: 0");
    EXPECT_EQ(book.all().size(), 2U);

    view.showCopies();
    EXPECT_EQ(said(view), "Go Back to a Copy\nMay 15, 2024 · Transactions: 1");
    view.choose(0);
    EXPECT_TRUE(said(view).starts_with("May 15, 2024\nTransactions in the copy: 1\n"
                                       "Transactions now: 2\n"));
    view.proceed();
    EXPECT_EQ(said(view), "May 15, 2024\nTransactions now: 1");
    view.showCopies();
    EXPECT_EQ(said(view), "Go Back to a Copy\nMay 15, 2024 · Transactions: 1\n"
                          "Set aside on May 15, 2024 · Transactions: 2");
    EXPECT_EQ(book.all().size(), 1U);

    view.importFrom(World::folder() + u"/none.csv");
    EXPECT_EQ(said(view), "Import\nnone.csv\nNo such file or directory");
    EXPECT_EQ(view.action(), QString());
    ASSERT_TRUE(more.open(QFile::WriteOnly));
    more.write("id,date,title,emoji,amount,kind,timestamp\n,2024-05-02,Rent,🏠,7,spending,\n"
               ",,Rent,🏠,7,spending,\n,2024-05-02,,🏠,7,spending,\n");
    more.close();
    view.importFrom(file);
    EXPECT_EQ(said(view), "Import\nout.csv\nNew: 1\nChanged: 0\nAlready here: 0\n"
                          "Lines that cannot be read: 2\nLine 3: it has no startDate; it has no "
                          "endDate\nLine 4: it has no title");
    view.importFrom(file);
    view.dismiss();
    EXPECT_FALSE(view.isPresented() || view.isBusy());
}

} // namespace
} // namespace kovamo
