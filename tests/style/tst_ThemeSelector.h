#pragma once

#include <QtCore/QObject>

class ThemeSelectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bindingsFollowTheTheme();
    void brokenThemeChangesNothing();
};
