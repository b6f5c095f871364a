#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace tamble::client {

/// What style sheets can know of one item.
struct StyleElement
{
    QString typeName;
    QStringList classes; ///< in written order, repetitions included
    QStringList states;  ///< likewise

    bool operator==(const StyleElement &) const = default;

    /// "RButton", "RButton.red", "RButton.{red,big}::{hovered,pressed}"
    QString text() const;
};

class StylePath;
void intrusive_ptr_add_ref(const StylePath *path) noexcept;
void intrusive_ptr_release(const StylePath *path) noexcept;

/// Keeps a path in its pool. The pool must outlive it.
using StylePathRef = boost::intrusive_ptr<const StylePath>;

/// The way from the scene root to an item, as style sheets see it.
///
/// A path is its innermost element behind the path of the elements around it. A pool holds each distinct path once, so
/// paths of one pool are equal exactly when they are the same object. For the GUI thread only.
class StylePath
{
public:
    /// For the pool; `element` must outlive the path.
    StylePath(const StylePath *parent, const StyleElement *element);
    Q_DISABLE_COPY_MOVE(StylePath)

    /// The path without its innermost element; null for a path of one element.
    const StylePath *parent() const { return m_parent; }
    /// The innermost element. Paths that end in equal elements share one.
    const StyleElement &element() const { return *m_element; }
    /// Number of elements, from 1.
    int depth() const { return m_depth; }

    const QString &typeName() const { return m_element->typeName; }
    const QStringList &classes() const { return m_element->classes; }
    const QStringList &states() const { return m_element->states; }

    /// The path of the outermost element alone.
    const StylePath &outermost() const;
    /// The elements' texts, outermost first, joined with "/": "RPanel/RButton.{red,big}::{hovered,pressed}".
    QString text() const;

private:
    friend class StylePathPool;
    friend void intrusive_ptr_add_ref(const StylePath *path) noexcept { ++path->m_users; }
    // A path without users stays known until its pool collects: a state that was left often comes back.
    friend void intrusive_ptr_release(const StylePath *path) noexcept { --path->m_users; }

    const StylePath *m_parent; // its pool counts this path among the users of that one
    const StyleElement *m_element;
    qint32 m_depth;
    mutable quint32 m_users = 0;
};

} // namespace tamble::client
