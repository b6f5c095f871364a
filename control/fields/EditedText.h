#pragma once

#include <QtCore/QString>
#include <QtQuick/QQuickItem>

#include <functional>
#include <memory>

class QValidator;

namespace tamble::client {

/// Qt's editor of one line or of many, as a field needs it.
class EditedText
{
public:
    /// Null for an item that is no editor.
    static std::unique_ptr<EditedText> of(QQuickItem *item);
    virtual ~EditedText() = default;

    virtual QQuickItem &item() const = 0;
    virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
    virtual int caret() const = 0;
    /// Where a press at a point of the item puts the caret.
    virtual int positionAt(const QPointF &point) const = 0;
    virtual void remove(int begin, int end) = 0;
    virtual void insert(int position, const QString &text) = 0;
    /// The selection; both are the caret where there is none.
    virtual int selectionStart() const = 0;
    virtual int selectionEnd() const = 0;
    bool hasSelection() const { return selectionStart() != selectionEnd(); }
    virtual void select(int begin, int end) = 0;
    virtual void selectAll() = 0;
    virtual bool isReadOnly() const = 0;
    /// Whether the text is a secret, such as a password.
    virtual bool hidesText() const = 0;
    /// Null for none.
    virtual QValidator *validator() const = 0;
    virtual bool hasManyLines() const = 0;
    /// Calls back while `context` lives, after each change.
    virtual void onTextChanged(QObject &context, std::function<void()> call) = 0;
    virtual void onValidatorChanged(QObject &context, std::function<void()> call) = 0;
};

} // namespace tamble::client
