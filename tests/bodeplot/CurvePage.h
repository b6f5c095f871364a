#pragma once

#include "bodeplot/RBodeplotCurve.h"
#include "bodeplot/filters/RBodeplotAsymmetricEqFilter.h"
#include "bodeplot/filters/RBodeplotEqFilter.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/filters/RBodeplotXOverFilter.h"
#include "support/QmlText.h"

namespace tamble::client {

/// Lets a test see what is drawn.
class Curve : public RBodeplotCurve
{
public:
    using RBodeplotCurve::lines;

    int rewriteCount() const { return m_node ? m_node->rewriteCount() : 0; }
    int updateCount() const { return m_updateCount; }
    /// Does what a frame would do; the node is the caller's.
    ResponseCurveNode *draw()
    {
        updatePolish();
        updatePaintNode(m_node, nullptr);
        return m_node;
    }

    RBodeplotPointModel *handle(int index)
    {
        return qobject_cast<RBodeplotPointModel *>(filterPointModels().value(index));
    }
    QPointF point(int index) { return handle(index)->property("point").toPointF(); }
    double column(int index) const { return lines().aggregated().columns.at(std::size_t(index)); }

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override
    {
        ++m_updateCount;
        QSGNode *node = RBodeplotCurve::updatePaintNode(old, data);
        m_node = dynamic_cast<ResponseCurveNode *>(node); // the software renderer has another
        return node;
    }

private:
    ResponseCurveNode *m_node = nullptr;
    int m_updateCount = 0;
};

/// A curve of 300 x 400 pixels and what else is declared with it as children of one item.
struct Page
{
    explicit Page(const QByteArray &curveBody, const QByteArray &siblings = {})
    {
        static const bool registered = [] {
            qmlRegisterType<RBodeplotCalculationItem>("CurveItems", 1, 0, "RBodeplotCalculationItem");
            qmlRegisterType<RBodeplotEqFilter>("CurveItems", 1, 0, "RBodeplotEqFilter");
            qmlRegisterType<RBodeplotAsymmetricEqFilter>("CurveItems", 1, 0, "RBodeplotAsymmetricEqFilter");
            qmlRegisterType<RBodeplotXOverFilter>("CurveItems", 1, 0, "RBodeplotXOverFilter");
            qmlRegisterType<RBodeplotFIRFilter>("CurveItems", 1, 0, "RBodeplotFIRFilter");
            qmlRegisterType<Curve>("CurveItems", 1, 0, "Curve");
            return true;
        }();
        Q_UNUSED(registered)
        root = objectFrom(engine, "import QtQuick\nimport CurveItems 1.0\nItem { width: 300; height: 400\n"
                                  "Curve { id: curve; objectName: 'curve'; width: 300; height: 400\n" +
                                      curveBody + "}\n" + siblings + "}");
        curve = root ? static_cast<Curve *>(root->findChild<RBodeplotCurve *>(QStringLiteral("curve"))) : nullptr;
    }

    QObject *filter(int index) const
    {
        const QQmlListReference list(curve, "calculationItems");
        return list.at(index);
    }

    QQmlEngine engine;
    std::unique_ptr<QObject> root;
    Curve *curve = nullptr;
};

} // namespace tamble::client
