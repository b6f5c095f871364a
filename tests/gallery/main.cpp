#include "tst_AudioEngine.h"
#include "tst_FilterSections.h"
#include "tst_GalleryAudio.h"
#include "tst_Measurements.h"
#include "tst_SoundFile.h"

#include <QtTest/QtTest>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    tst_Measurements measurements;
    tst_SoundFile files;
    tst_AudioEngine engine;
    tst_FilterSections filters;
    tst_GalleryAudio gallery;
    return QTest::qExec(&measurements, argc, argv) + QTest::qExec(&files, argc, argv) +
           QTest::qExec(&engine, argc, argv) + QTest::qExec(&filters, argc, argv) + QTest::qExec(&gallery, argc, argv);
}
