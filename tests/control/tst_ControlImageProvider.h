#pragma once

#include <QtCore/QObject>

class tst_ControlImageProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lookup_data();
    void lookup();
    void manyVariants();
    void noAssetDirectory();
    void baseUrlThatIsNoLocalFile();
    void bundleStandsInForTheFirstDirectory();
    void asynchronousRequestsOutliveTheEngine();
};
