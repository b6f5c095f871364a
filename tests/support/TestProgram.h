#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>

/// What a test program runs: classes that announce themselves by instantiating TestClass at their end.
///
/// A program holds the classes of many folders, since building a program costs more than a class does. Its first
/// argument names a class and the others go to Qt Test; without arguments all classes run.
namespace TestProgram {

using Maker = std::function<std::unique_ptr<QObject>()>;

/// True, so that a class can be added where a constant is initialised.
bool add(const char *className, Maker maker);

int run(int argc, char **argv);

} // namespace TestProgram

/// Puts the class among those of its program: `template struct TestClass<tst_AxisTicks>;`
template <typename Test>
struct TestClass
{
    static const bool added;
};

template <typename Test>
const bool TestClass<Test>::added = TestProgram::add(Test::staticMetaObject.className(),
                                                     [] { return std::make_unique<Test>(); });
