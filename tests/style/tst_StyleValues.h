#pragma once

#include <QtCore/QObject>

/// Texts and function calls as colours, addresses, fonts, numbers and flags.
class tst_StyleValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void colors_data();
    void colors();
    void failures_data();
    void failures();
    void hueOfAFullCircle();
    void addresses_data();
    void addresses();
    void plainValues();
    void numbers_data();
    void numbers();
    void numbersUnderACommaLocale();
    void fonts_data();
    void fonts();
    void fontDefaults();
};
