#pragma once

#include <QDialog>

namespace pastorix {

struct HojaDeConversion;
struct Sesion;

// What was read of an Access file: rows per table, what was odd and what that means, where the original is kept.
class LoConvertido : public QDialog {
public:
    explicit LoConvertido(const HojaDeConversion& hoja, QWidget* padre = nullptr);
};

// Shows it for each file that the session converted since it was last asked.
void MostrarLoConvertido(Sesion& sesion, QWidget* padre);

} // namespace pastorix
