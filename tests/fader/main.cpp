#include "tst_FaderLaws.h"
#include "tst_FaderMarks.h"
#include "tst_RFaderBase.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_FaderLaws laws;
    tst_FaderMarks marks;
    tst_RFaderBase fader;
    return QTest::qExec(&laws, argc, argv) + QTest::qExec(&marks, argc, argv) + QTest::qExec(&fader, argc, argv);
}
