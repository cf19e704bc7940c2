#include "reports/formularios/CampoAno.h"

#include "frame/calendario/Calendario.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace pastorix {

CampoAño::CampoAño(const QString& nombre, const QString& accesible, QWidget* padre)
    : QLineEdit(padre) {
    setObjectName(nombre);
    setAccessibleName(accesible);
    setMaxLength(4);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    setToolTip(QStringLiteral("Flechas: año siguiente y anterior"));
    setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
    setText(QString::fromStdString(AñoReferenciaActual()));
}

void CampoAño::focusInEvent(QFocusEvent* e) {
    QLineEdit::focusInEvent(e);
    if (e->reason() != Qt::PopupFocusReason)
        QMetaObject::invokeMethod(
            this, [this] { selectAll(); }, Qt::QueuedConnection);
}

void CampoAño::keyPressEvent(QKeyEvent* e) {
    const bool arriba = e->key() == Qt::Key_Up;
    if ((!arriba && e->key() != Qt::Key_Down) || text().size() != 4)
        return QLineEdit::keyPressEvent(e);
    setText(QString::number(std::clamp(text().toInt() + (arriba ? 1 : -1), 1000, 9999)));
    selectAll();
}

} // namespace pastorix
