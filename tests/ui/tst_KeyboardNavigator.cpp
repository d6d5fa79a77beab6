#include "KeyboardNavigator.h"
#include "PageFixtures.h"
#include "RdcGridA.h"
#include "tvrEditBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class tst_KeyboardNavigator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysMoveTheFocus_data();
    void keysMoveTheFocus();
    void otherKeysReachTheBox();

private:
    QWidget *control(const QString &name) const;

    std::unique_ptr<QWidget> m_window;
    InputPageControls m_input;
    ResultsPageControls m_results;
};

void tst_KeyboardNavigator::init()
{
    m_window = std::make_unique<QWidget>();
    auto *input = new InputPage;
    auto *results = new ResultsPage;
    auto *layout = new QHBoxLayout(m_window.get());
    layout->addWidget(input);
    layout->addWidget(results);
    m_input = input->controls();
    m_results = results->controls();
    new KeyboardNavigator(m_input, m_results, m_window.get());
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_KeyboardNavigator::cleanup()
{
    m_window.reset();
}

QWidget *tst_KeyboardNavigator::control(const QString &name) const
{
    auto *widget = m_window->findChild<QWidget *>(name);
    if (auto *box = qobject_cast<tvrEditBox *>(widget))
        return box->editor();
    if (auto *grid = qobject_cast<RdcGridA *>(widget)) // the grid's drawing surface takes the keys
        return grid->findChild<QWidget *>(QStringLiteral("pic"));
    return widget;
}

void tst_KeyboardNavigator::keysMoveTheFocus_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");
    const auto down = static_cast<int>(Qt::Key_Down);
    const auto up = static_cast<int>(Qt::Key_Up);
    const auto enter = static_cast<int>(Qt::Key_Return);
    // One row per kind of target: the moves themselves are KeyboardMovesTest's table.
    QTest::newRow("box to box") << 1 << 2 << "txtInput_15" << down << "txtInput_16";
    QTest::newRow("box to the chosen option")
            << 2 << 1 << "txtInput_3" << enter << "optCalculate_2";
    QTest::newRow("option to the first box") << 2 << 1 << "optCalculate_2" << enter << "txtInput_4";
    QTest::newRow("box to the grid") << 3 << 1 << "txtInput_19" << enter << "grdRatingCurve";
    QTest::newRow("Today button to a box") << 2 << 1 << "cmdToday" << up << "txtInput_3";
    QTest::newRow("output to output") << 1 << 2 << "txtOutput_5" << enter << "txtOutput_7";
}

void tst_KeyboardNavigator::keysMoveTheFocus()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    m_input.optCalculate[static_cast<size_t>(method)]->setChecked(true);
    m_input.optChannelFlow[static_cast<size_t>(flow)]->setChecked(true);
    const PageUnits units(m_window->fontMetrics());
    PageLayout::LayoutInputPage(m_input, method, flow, units);
    PageLayout::LayoutResultsPage(m_results, method, flow, units);
    QWidget *start = control(from);
    QVERIFY(start);
    start->setFocus();
    QVERIFY(start->hasFocus());
    QTest::keyClick(start, static_cast<Qt::Key>(key));
    QCOMPARE(QApplication::focusWidget(), control(to));
}

void tst_KeyboardNavigator::otherKeysReachTheBox()
{
    QLineEdit *editor = m_input.txtInput[5]->editor();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("2.5"));
    QTest::keyClick(editor, Qt::Key_Left);
    QCOMPARE(editor->text(), QStringLiteral("2.5"));
    QCOMPARE(editor->cursorPosition(), 2);
    QVERIFY(editor->hasFocus());
}

QTEST_MAIN(tst_KeyboardNavigator)
#include "tst_KeyboardNavigator.moc"
