#include <QApplication>
#include <QLocale>

#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    // Names are compared by a real language, as they are for users; in the C locale both sides would cheat.
    qputenv("LC_ALL", "en_US.UTF-8");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
