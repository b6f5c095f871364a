#include "plot/CustomMaterial.h"
#include "plot/CustomShader.h"
#include "support/TestProgram.h"

#include <cstring>

using namespace tamble::client;

class tst_CustomMaterial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparesByIdentity()
    {
        const CustomMaterial first;
        const CustomMaterial second;
        QVERIFY(first.flags().testFlag(QSGMaterial::Blending));
        QCOMPARE(first.type(), second.type());
        QCOMPARE(first.compare(&first), 0);
        QVERIFY(first.compare(&second) != 0);
        QVERIFY((first.compare(&second) < 0) != (second.compare(&first) < 0));
    }

    void dirtyOnChangeOnly()
    {
        CustomMaterial material;
        material.setColor(QColor::fromRgbF(1.0f, 0.5f, 0.25f, 0.5f));
        QVERIFY(material.isDirty());
        material.clearDirty();
        material.setColor(QColor::fromRgbF(1.0f, 0.5f, 0.25f, 0.5f));
        QVERIFY(!material.isDirty());
        CustomMaterialFields fields = material.fields();
        fields.zoom = 2.0f;
        material.setFields(fields);
        QVERIFY(material.isDirty());
        QCOMPARE(material.fields().red, 1.0f);
    }

    void uniformLayout()
    {
        QByteArray block(112, '\x7f');
        const QByteArray untouched = block;
        CustomShader::writeFields(block.data(), {.centerX = 1, .centerY = 2, .zoom = 3, .limit = 4, .alpha = 0.5f});

        const auto floatAt = [&](int offset) {
            float value = 0;
            std::memcpy(&value, block.constData() + offset, sizeof value);
            return value;
        };
        QCOMPARE(block.left(68), untouched.left(68));
        QCOMPARE(floatAt(68), 3.0f);
        QCOMPARE(floatAt(72), 1.0f);
        QCOMPARE(floatAt(76), 2.0f);
        qint32 limit = 0;
        std::memcpy(&limit, block.constData() + 80, sizeof limit);
        QCOMPARE(limit, 4);
        QCOMPARE(floatAt(84), 0.0f);
        QCOMPARE(floatAt(96), 0.5f);
        QCOMPARE(block.mid(100), untouched.mid(100));
    }
};

template struct TestClass<tst_CustomMaterial>;
#include "tst_CustomMaterial.moc"
