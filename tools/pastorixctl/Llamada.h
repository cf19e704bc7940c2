#pragma once

#include "frame/Mensajes.h"
#include "frame/Sesion.h"
#include "pastorixctl/Ordenes.h"

#include <initializer_list>
#include <map>

namespace pastorix::ctl {

// The words of a call, checked before anything is touched: options with a value ("--ganadero 12"), options without ("--si"), and at most
// `palabras` words of the command's own.
struct Llamada {
    QString palabra;
    std::map<QString, QString> opciones; // "--ganadero" -> value

    Llamada(const QStringList& argumentos, std::initializer_list<const char*> conValor,
            std::initializer_list<const char*> sinValor = {}, int palabras = 0);

    bool Hay(const char* nombre) const;
    QString Opcion(const char* nombre) const; // null when it is not there
    QString Exigida(const char* nombre) const;
    bool EsPrincipal() const; // --base
};

// --hoy: stops the clock. A null text lets it run.
void FijarFecha(const QString& texto);

// Starts and enters as the program does, without windows and without the yearly question.
void AbrirInstalacion(Sesion& sesion, const QString& carpeta, bool principal, const QString& usuario = {});

// A box as lines of stderr.
void Imprimir(const Mensaje& mensaje);

} // namespace pastorix::ctl
