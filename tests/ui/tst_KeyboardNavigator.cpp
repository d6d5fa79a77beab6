#include "KeyboardNavigator.h"
#include "PageFixtures.h"
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
    std::unique_ptr<InputPageFixture> m_input;
    std::unique_ptr<ResultsPageFixture> m_results;
    KeyboardNavigator *m_navigator = nullptr;
};

void tst_KeyboardNavigator::init()
{
    m_window = std::make_unique<QWidget>();
    m_input = std::make_unique<InputPageFixture>();
    m_results = std::make_unique<ResultsPageFixture>();
    auto *layout = new QHBoxLayout(m_window.get());
    layout->addWidget(m_input->panel.release());
    layout->addWidget(m_results->panel.release());
    m_navigator = new KeyboardNavigator(m_input->controls, m_results->controls, m_window.get());
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
    QTest::newRow("Down: engineer to date") << 1 << 1 << "txtInput_2" << down << "txtInput_3";
    QTest::newRow("Enter: date to the chosen method")
            << 2 << 1 << "txtInput_3" << enter << "optCalculate_2";
    QTest::newRow("Up: bottom width to length (method 2)")
            << 2 << 1 << "txtInput_5" << up << "txtInput_4";
    QTest::newRow("Down: slope to the chosen flow")
            << 3 << 2 << "txtInput_8" << down << "optChannelFlow_2";
    QTest::newRow("Enter: flow rate stays") << 1 << 2 << "txtInput_15" << enter << "txtInput_15";
    QTest::newRow("Down: flow rate to duration")
            << 1 << 2 << "txtInput_15" << down << "txtInput_16";
    QTest::newRow("Enter: duration stays") << 1 << 2 << "txtInput_16" << enter << "txtInput_16";
    QTest::newRow("Down: duration to lining") << 1 << 2 << "txtInput_16" << down << "txtInput_17";
    QTest::newRow("Enter: roughness to the grid")
            << 3 << 1 << "txtInput_19" << enter << "grdRatingCurve";
    QTest::newRow("Enter: method option to length (method 2)")
            << 2 << 1 << "optCalculate_2" << enter << "txtInput_4";
    QTest::newRow("Enter: method option to bottom width (method 3)")
            << 3 << 1 << "optCalculate_3" << enter << "txtInput_5";
    QTest::newRow("Enter: flow option to flow rate")
            << 1 << 2 << "optChannelFlow_2" << enter << "txtInput_15";
    QTest::newRow("Down: Today to length") << 2 << 1 << "cmdToday" << down << "txtInput_4";
    QTest::newRow("Up: Today to date") << 2 << 1 << "cmdToday" << up << "txtInput_3";
    QTest::newRow("Enter: output over the hidden runoff depth")
            << 1 << 2 << "txtOutput_5" << enter << "txtOutput_7";
    QTest::newRow("Up: output 7 to 6") << 1 << 1 << "txtOutput_7" << up << "txtOutput_6";
}

void tst_KeyboardNavigator::keysMoveTheFocus()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    m_input->controls.optCalculate[static_cast<size_t>(method)]->setChecked(true);
    m_input->controls.optChannelFlow[static_cast<size_t>(flow)]->setChecked(true);
    const PageUnits units(m_window->fontMetrics());
    PageLayout::LayoutInputPage(m_input->controls, method, flow, units);
    PageLayout::LayoutResultsPage(m_results->controls, method, flow, units);
    QWidget *start = control(from);
    QVERIFY(start);
    start->setFocus();
    QVERIFY(start->hasFocus());
    QTest::keyClick(start, static_cast<Qt::Key>(key));
    QCOMPARE(QApplication::focusWidget(), control(to));
}

void tst_KeyboardNavigator::otherKeysReachTheBox()
{
    QLineEdit *editor = m_input->controls.txtInput[5]->editor();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("2.5"));
    QTest::keyClick(editor, Qt::Key_Left);
    QCOMPARE(editor->text(), QStringLiteral("2.5"));
    QCOMPARE(editor->cursorPosition(), 2);
    QVERIFY(editor->hasFocus());
}

QTEST_MAIN(tst_KeyboardNavigator)
#include "tst_KeyboardNavigator.moc"
