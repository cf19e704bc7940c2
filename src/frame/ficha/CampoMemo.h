#pragma once

#include <QPlainTextEdit>

#include <string>

namespace pastorix {

// A text of several lines. The databases hold line breaks as carriage return and line feed; a text that nobody touched goes back exactly as
// it came. Tab moves on to the next field.
class CampoMemo : public QPlainTextEdit {
public:
    explicit CampoMemo(QWidget* padre = nullptr);

    void Poner(const std::string& texto);
    std::string Texto() const;
    bool Cambiado() const { return document()->isModified(); }

    QSize sizeHint() const override; // three lines: the layout gives more where there is room

private:
    std::string m_original;
};

} // namespace pastorix
