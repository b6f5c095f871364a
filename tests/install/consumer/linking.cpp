// A host that links the module and registers its types itself.

#include <TambleClientControlModule.h>
#include <meter/RMeterBase.h>

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <tambleclient-common/DoubleValueConverter.h>
#include <tamblecommon-math/FilterAlgorithm.h>
#include <tamblecommon-math/ScaleMappings.h>

#include <memory>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQmlEngine engine;
    tamble::client::TambleClientControlModule module;
    module.registerTypes("TambleClient.Control");
    module.initializeEngine(&engine, "TambleClient.Control");

    QQmlComponent component(&engine);
    component.setData("import TambleClient.Control 1.0\nRMeterBase { value: 0 }", QUrl());
    const std::unique_ptr<QObject> object(component.create());
    const auto *meter = qobject_cast<tamble::client::RMeterBase *>(object.get());
    const tamble::client::DoubleValueConverter converter;
    tamble::common::XOverFilter crossover;
    tamble::common::BodePlotCalculation response;
    response.items = {&crossover};
    tamble::common::FilterAlgorithm::calculateBodePlotLogarithmic(response, false, 0);
    const bool works = meter && meter->getValue() == 0 && converter.toText(1.0) == QStringLiteral("1.0") &&
                       tamble::common::lin2lin(5, 0, 10, 0, 1) == 0.5 &&
                       response.results.aggregated.magnitude == std::vector<double>(4096, 0.0);
    if (!works)
        qWarning("%s", qPrintable(component.errorString()));
    return works ? EXIT_SUCCESS : EXIT_FAILURE;
}
