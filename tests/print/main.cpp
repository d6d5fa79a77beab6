// The print tests: one executable running each test object in turn.

#include <QApplication>

int runReportLayoutTests(int argc, char **argv);
int runPrintRoutineTests(int argc, char **argv);

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    int failures = 0;
    failures += runReportLayoutTests(argc, argv);
    failures += runPrintRoutineTests(argc, argv);
    return failures == 0 ? 0 : 1;
}
