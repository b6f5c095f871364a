#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>

/// What a test program runs: classes that announce themselves by an object of TestClass at their end.
///
/// A program holds the classes of many folders, since building a program costs more than a class does. Its first
/// argument names a class and the others go to Qt Test; without arguments all classes run.
namespace TestProgram {

using Maker = std::function<std::unique_ptr<QObject>()>;

void add(const char *className, Maker maker);

int run(int argc, char **argv);

} // namespace TestProgram

/// Puts the class among those of its program: `const TestClass<tst_AxisTicks> registered;`
template <typename Test>
struct TestClass
{
    TestClass()
    {
        TestProgram::add(Test::staticMetaObject.className(), [] { return std::make_unique<Test>(); });
    }
};
