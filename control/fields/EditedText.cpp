#include "fields/EditedText.h"

#include <QtGui/QValidator>
#include <QtQuick/private/qquicktextedit_p.h>
#include <QtQuick/private/qquicktextinput_p.h>

#include <type_traits>
#include <utility>

namespace tamble::client {

namespace {

template <typename Editor>
class EditorText : public EditedText
{
public:
    explicit EditorText(Editor &editor)
        : m_editor(editor)
    {}

    QQuickItem &item() const override { return m_editor; }
    QString text() const override { return m_editor.text(); }
    void setText(const QString &text) override { m_editor.setText(text); }
    int caret() const override { return m_editor.cursorPosition(); }
    void remove(int begin, int end) override { m_editor.remove(begin, end); }
    void insert(int position, const QString &text) override { m_editor.insert(position, text); }
    int selectionStart() const override { return m_editor.selectionStart(); }
    int selectionEnd() const override { return m_editor.selectionEnd(); }
    void select(int begin, int end) override { m_editor.select(begin, end); }
    void selectAll() override { m_editor.selectAll(); }
    bool isReadOnly() const override { return m_editor.isReadOnly(); }
    bool hasManyLines() const override { return std::is_same_v<Editor, QQuickTextEdit>; }

    int positionAt(const QPointF &point) const override
    {
        return m_editor.inputMethodQuery(Qt::ImCursorPosition, point).toInt();
    }

    bool hidesText() const override
    {
        if constexpr (std::is_same_v<Editor, QQuickTextInput>)
            return m_editor.echoMode() != QQuickTextInput::Normal;
        else
            return false;
    }

    QValidator *validator() const override
    {
        if constexpr (std::is_same_v<Editor, QQuickTextInput>)
            return m_editor.validator();
        else
            return nullptr;
    }

    void onTextChanged(QObject &context, std::function<void()> call) override
    {
        QObject::connect(&m_editor, &Editor::textChanged, &context, std::move(call));
    }

    void onValidatorChanged(QObject &context, std::function<void()> call) override
    {
        if constexpr (std::is_same_v<Editor, QQuickTextInput>)
            QObject::connect(&m_editor, &Editor::validatorChanged, &context, std::move(call));
    }

private:
    Editor &m_editor;
};

} // namespace

std::unique_ptr<EditedText> EditedText::of(QQuickItem *item)
{
    if (auto *input = qobject_cast<QQuickTextInput *>(item))
        return std::make_unique<EditorText<QQuickTextInput>>(*input);
    if (auto *edit = qobject_cast<QQuickTextEdit *>(item))
        return std::make_unique<EditorText<QQuickTextEdit>>(*edit);
    return nullptr;
}

} // namespace tamble::client
