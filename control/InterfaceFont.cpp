#include "InterfaceFont.h"

#include <QtCore/QPointer>
#include <QtCore/QResource>
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
    // As data, which are used where the library has them; of a file, the font database would keep two copies.
    for (const char *file : {":/asset/fonts/Roboto-Regular.ttf", ":/asset/fonts/Roboto-Bold.ttf"})
        QFontDatabase::addApplicationFontFromData(QResource(QString::fromLatin1(file)).uncompressedData());
    QFont::insertSubstitution(QStringLiteral("Brack Office Sans"), QStringLiteral("Roboto"));
}

} // namespace tamble::client
