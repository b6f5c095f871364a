#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlIncubator>

namespace tamble::client {

class ViewHost;
struct ViewEntry;

/// Makes one view in its host. The host, whose child this is, goes with a view that is not finished.
class ViewLoad : public QObject, private QQmlIncubator
{
    Q_OBJECT

public:
    ViewLoad(ViewHost &host, bool isAsynchronous);

    /// Begins. Names of files are those of `context`, the page's; a view that needs no waiting is there at once.
    void start(const ViewEntry &entry, QQmlContext &context);
    /// The view is not wanted any more: it goes with its host. What has begun is finished before, since Qt holds back
    /// all messages about bindings for good when an object is never finished.
    void cancel();

Q_SIGNALS:
    void finished();
    void failed(const QString &error);

private:
    void begin();
    void finish();
    void fail(const QString &error);
    void setInitialState(QObject *object) override;
    void statusChanged(Status status) override;

    ViewHost &m_host;
    QPointer<QQmlComponent> m_component;
    QQmlContext *m_context = nullptr;
    bool m_isOver = false;
    bool m_isCancelled = false;
    bool m_isCreating = false;
};

} // namespace tamble::client
