#include "InterfaceFont.h"

#include <QtCore/QPointer>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>

namespace tamble::client {

void registerInterfaceFont()
{
    // The font database forgets its application fonts with the application object.
    static QPointer<QCoreApplication> served;
    if (served || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    served = QCoreApplication::instance();
    for (const char *file : {":/asset/fonts/Lato-Regular.ttf", ":/asset/fonts/Lato-Bold.ttf"})
        QFontDatabase::addApplicationFont(QString::fromLatin1(file));
    QFont::insertSubstitution(QStringLiteral("Brack Office Sans"), QStringLiteral("Lato"));
}

} // namespace tamble::client
