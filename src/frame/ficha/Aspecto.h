#pragma once

#include <QString>

class QEvent;
class QLabel;
class QObject;
class QTableWidget;
class QWidget;

namespace pastorix {

// A heading within a sheet: what the controls below it are about.
QLabel* Titular(const QString& texto, QWidget* padre);

// How the tables of the sheets look and behave: rows of one text line, one chosen at a time, Tab goes on to the next control.
void VestirTabla(QTableWidget& tabla);

// The wheel over a combo that has not the focus: it scrolls past, and changes nothing that nobody is looking at. For event filters.
bool EsRuedaAjena(const QObject* objeto, const QEvent& evento);

} // namespace pastorix
