#include "support/TestProgram.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

#include <cstdlib>
#include <map>
#include <string>

namespace TestProgram {

namespace {

std::map<std::string, Maker> &classes()
{
    static std::map<std::string, Maker> all;
    return all;
}

} // namespace

bool add(const char *className, Maker maker)
{
    return classes().emplace(className, std::move(maker)).second;
}

int run(int argc, char **argv)
{
    const auto found = argc < 2 ? classes().end() : classes().find(argv[1]);
    if (found == classes().end()) {
        qCritical("Name a class of tests, then arguments of Qt Test. The classes are:");
        for (const auto &[name, make] : classes())
            qCritical("  %s", name.c_str());
        return EXIT_FAILURE;
    }
    argv[1] = argv[0];
    std::unique_ptr<QObject> test = found->second();
    const int failures = QTest::qExec(test.get(), argc - 1, argv + 1);
    test.reset();
    // An engine's singletons outlive it until then.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return failures;
}

} // namespace TestProgram

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    return TestProgram::run(argc, argv);
}
