#pragma once

#include "base/ControlExport.h"
#include "views/ViewEntry.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVariantAnimation>
#include <QtQml/QJSValue>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class ViewHost;
class ViewLoad;

/// Shows one of several views and loads each when it is first wanted. The view that is shown stays until the wanted one
/// is there, and stays when that cannot be made.
///
/// The focus follows into the new view when it was in the old one. A view that is kept is hidden and keeps what had the
/// focus in it; any other is destroyed when it has left.
class TAMBLE_CLIENT_CONTROL_EXPORT RViewContainerBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RViewContainerBase)
    Q_PROPERTY(QVariant views READ views WRITE setViews NOTIFY viewsChanged FINAL)
    Q_PROPERTY(QString currentKey READ currentKey WRITE setCurrentKey NOTIFY currentKeyChanged FINAL)
    Q_PROPERTY(QQuickItem *currentItem READ currentItem NOTIFY currentItemChanged FINAL)
    Q_PROPERTY(QString currentTitle READ currentTitle NOTIFY currentTitleChanged FINAL)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged FINAL)
    Q_PROPERTY(QStringList history READ history NOTIFY historyChanged FINAL)
    Q_PROPERTY(QJSValue guard READ guard WRITE setGuard NOTIFY guardChanged FINAL)
    /// Whether views are loaded in the background, a little with each frame; true by default.
    Q_PROPERTY(bool asynchronous MEMBER m_isAsynchronous NOTIFY asynchronousChanged FINAL)
    /// Whether views fade into each other, for 150 ms; true by default.
    Q_PROPERTY(bool animated MEMBER m_isAnimated NOTIFY animatedChanged FINAL)
    /// Whether the present view is blurred, and cannot be used, while the next one is loading; false by default.
    Q_PROPERTY(bool blurWhenBusy MEMBER m_blursWhenBusy NOTIFY blurWhenBusyChanged FINAL)

public:
    explicit RViewContainerBase(QQuickItem *parent = nullptr);
    ~RViewContainerBase() override;

    /// List of maps with key, title, component or source (a file, relative to the page's), and keepAlive, which is
    /// false by default. Views whose component or source has changed are made anew.
    QVariant views() const { return m_views; }
    void setViews(const QVariant &views);
    /// Key of the view that is shown; at the start that of the first one. Setting it is as show().
    QString currentKey() const { return m_currentKey; }
    void setCurrentKey(const QString &key);
    /// The view that is shown; null for none.
    QQuickItem *currentItem() const;
    /// Its title.
    QString currentTitle() const;
    /// Whether a view is loading.
    bool isBusy() const { return m_isBusy; }
    /// Function that is called with the wanted key before the present view is left; when it returns false, or throws,
    /// that stays. Null, the default, for none. It is not asked when the page takes the present view from `views`.
    QJSValue guard() const { return m_guard; }
    void setGuard(const QJSValue &guard);
    /// Keys of the views that were shown before, the last one at the end; 100 at most.
    QStringList history() const { return m_history; }

    /// Shows a view.
    Q_INVOKABLE void show(const QString &key);
    /// Shows the view before this one; nothing when there was none.
    Q_INVOKABLE void back();
    /// Destroys a view that is kept, or is loading. The one that is shown stays.
    Q_INVOKABLE void unload(const QString &key);

Q_SIGNALS:
    void viewsChanged();
    void currentKeyChanged();
    void currentItemChanged();
    void currentTitleChanged();
    void busyChanged();
    void historyChanged();
    void guardChanged();
    void asynchronousChanged();
    void animatedChanged();
    void blurWhenBusyChanged();
    /// Another view is shown.
    void viewShown(const QString &key);
    /// A view cannot be shown, and why; the present one stays.
    void viewFailed(const QString &key, const QString &error);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    /// A view that is wanted, and what the history is to be when it is shown.
    struct Request
    {
        QString key;
        QStringList history;
    };

    const ViewEntry *entryOf(const QString &key) const;
    void showFirst();
    void go(const Request &request);
    bool isAllowed(const QString &key);
    void load(ViewEntry entry);
    void cancelLoading();
    void onFailed(const QString &error);
    void enter(ViewHost *host);
    void setBusy(bool busy);
    void fade(ViewHost *from, ViewHost *to);
    void showFade(const QVariant &part);
    void endFade();
    void drop(const QString &key);

    QVariant m_views;
    QList<ViewEntry> m_entries;
    QHash<QString, ViewHost *> m_hosts; ///< All that are loaded, children.
    QString m_currentKey;
    QString m_firstKey; ///< Wanted before there was a view.
    QStringList m_history;
    QJSValue m_guard;
    Request m_wanted;            ///< What is being loaded.
    QPointer<ViewHost> m_coming; ///< Its host.
    QPointer<ViewHost> m_leaving;
    QString m_leavingKey;
    QVariantAnimation m_fade;
    QObject *m_busyMark = nullptr; // a child, made when first busy
    int m_requests = 0;
    bool m_isBusy = false;
    bool m_isAsynchronous = true;
    bool m_isAnimated = true;
    bool m_blursWhenBusy = false;
};

} // namespace tamble::client
