#pragma once

#include <QtCore/QObject>

/// What a sheet gives to a style path: matching, the order of matches, merging, inheritance and the caches.
class tst_StyleResolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void wordsAreNoKeysOfTheTree_data();
    void wordsAreNoKeysOfTheTree();
    void repeatedWordsMatchByEachRoute();
    void declarationsOnASameElementStep();

    void winner_data();
    void winner();
    void positionsCountAgainstALessSpecificMatch();
    void samePositionKeepsTheFirst();
    void userSheetWinsAtTheSamePosition();
    void orderOfClassWordsDoesNotMatter();

    void inheritance_data();
    void inheritance();
    void elementWithoutMatchSharesTheParentsMap();
    void equalResultsShareAMap();
    void resolvedMapFinds();
    void emptySheet();
    void resolverKeepsItsPaths();
    void deepPath();

    void costDoesNotDependOnOtherRules();
    void costOfDescendantChains();
    void costOfRepeatedWords();
    void costOfManyNamesAndWords();
    void knownPathsAndElementsCostNothing();

    void styleInfo();
};
