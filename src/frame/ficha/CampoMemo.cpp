#include "frame/ficha/CampoMemo.h"

#include <QSignalBlocker>

namespace pastorix {

CampoMemo::CampoMemo(QWidget* padre)
    : QPlainTextEdit(padre) {
    setTabChangesFocus(true);
}

void CampoMemo::Poner(const std::string& texto) {
    const QSignalBlocker silencio(this); // nobody typed it
    m_original = texto;
    setPlainText(QString::fromStdString(texto));
    document()->setModified(false);
}

std::string CampoMemo::Texto() const {
    if (!Cambiado())
        return m_original;
    return toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")).toStdString();
}

QSize CampoMemo::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 40, fontMetrics().lineSpacing() * 3 + 12};
}

} // namespace pastorix
