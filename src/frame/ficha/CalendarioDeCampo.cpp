#include "frame/ficha/CalendarioDeCampo.h"

#include "frame/calendario/Reloj.h"

#include <QCalendarWidget>
#include <QDialog>
#include <QLocale>
#include <QVBoxLayout>

namespace pastorix {

std::optional<Fecha> ElegirEnCalendario(QWidget& campo, std::optional<Fecha> actual) {
    QDialog hoja(&campo, Qt::Popup);
    hoja.setObjectName(QStringLiteral("Calendario"));
    hoja.setAccessibleName(QStringLiteral("Calendario"));
    auto* calendario = new QCalendarWidget(&hoja);
    calendario->setLocale(QLocale(QLocale::Spanish));
    calendario->setFirstDayOfWeek(Qt::Monday);
    calendario->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const auto dia = actual.value_or(Hoy());
    calendario->setSelectedDate(QDate(dia.Año(), dia.Mes(), dia.DiaDelMes()));
    auto* todo = new QVBoxLayout(&hoja);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(calendario);
    QObject::connect(calendario, &QCalendarWidget::activated, &hoja, &QDialog::accept);
    QObject::connect(calendario, &QCalendarWidget::clicked, &hoja, &QDialog::accept);
    hoja.move(campo.mapToGlobal(QPoint(0, campo.height())));
    calendario->setFocus();
    if (hoja.exec() != QDialog::Accepted)
        return std::nullopt;
    const auto elegido = calendario->selectedDate();
    return Fecha::De(elegido.year(), elegido.month(), elegido.day());
}

} // namespace pastorix
