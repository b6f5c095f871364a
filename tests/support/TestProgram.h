#pragma once

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <functional>
#include <memory>

/// What a test program runs: classes that announce themselves by instantiating TestClass at their end.
///
/// A program holds the classes of many folders, since building a program costs more than a class does. Its first
/// argument names a class and the others go to Qt Test; without one it lists the classes and fails.
namespace TestProgram {

using Maker = std::function<std::unique_ptr<QObject>()>;

/// True, so that a class can be added where a constant is initialised.
bool add(const char *className, Maker maker);

int run(int argc, char **argv);

} // namespace TestProgram

/// A class of tests in which a warning that no test expects is a failure.
class QuietTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
};

/// Puts the class among those of its program: `template struct TestClass<tst_AxisTicks>;`
template <typename Test>
struct TestClass
{
    static const bool added;
};

template <typename Test>
const bool TestClass<Test>::added = TestProgram::add(Test::staticMetaObject.className(),
                                                     [] { return std::make_unique<Test>(); });
