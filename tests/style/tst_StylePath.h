#pragma once

#include <QtCore/QObject>

/// Style paths, the pool that holds each of them once, and the names of types.
class tst_StylePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void parts();
    void equalPathsAreOne_data();
    void equalPathsAreOne();
    void longerListsOfWordsDiffer();
    void unusedPathsStayUntilCollected();
    void unusedPathsGoBeforeTheyDouble();
    void collectKeepsWhatIsUsed();
    void collectOfADeepPath();
    void typeName_data();
    void typeName();
};
