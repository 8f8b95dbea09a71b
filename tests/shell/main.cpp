// Runs the shell's screen tests in one application.
#include <QApplication>

int runTitleAndOptionsTests(int argc, char* argv[]);
int runRulesTests(int argc, char* argv[]);

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int failed = runTitleAndOptionsTests(argc, argv) | runRulesTests(argc, argv);
    return failed == 0 ? 0 : 1;
}
