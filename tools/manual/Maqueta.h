#pragma once

#include "manual/Fuente.h"
#include "manual/Pintura.h"

#include <QPdfWriter>

#include <functional>
#include <vector>

namespace pastorix::manual {

// Sets a document on A4 pages: title page, table of contents, chapters.
class Maqueta {
public:
    // papel must outlive the object; pictures are looked for in carpeta.
    Maqueta(QPdfWriter& papel, Documento documento, QString carpeta);

    // Writes all pages. Throws ErrorFuente for a picture that cannot be read. Returns the number of pages.
    int Escribir();

private:
    // A piece that stays whole: a line of text, a row of a table, a figure.
    struct Trozo {
        double alto = 0;
        double antes = 0;          // space above, lost at the top of a page
        bool conSiguiente = false; // never the last of a page
        bool flota = false;        // may wait for the next page while the text goes on
        int titulo = -1;           // heading that begins here
        int cabecera = -1;         // piece that is repeated above when this one begins a page
        std::function<void(QPainter&, QPointF)> pintar;
    };
    struct Entrada {
        QString texto;
        int nivel = 1;
        int pagina = 0; // among the text's pages, from 0 on
    };
    struct Colocado {
        std::size_t trozo = 0;
        double y = 0;
    };

    double Mm(double mm) const;
    void Componer();
    void AtarLista(std::size_t bloque);
    void PonerTitulo(const Bloque& bloque);
    void PonerTexto(const TextoCompuesto& texto, double sangria, double antes, const QString& marca = {});
    void PonerNota(const Bloque& bloque);
    void PonerFigura(const Bloque& bloque);
    void PonerTabla(const Bloque& bloque);

    void Repartir();
    void PaginaNueva();
    bool Cabe(std::size_t primero, std::size_t ultimo) const;
    void Colocar(std::size_t trozo);
    void SoltarFiguras();

    void PintarPortada(QPainter& pintor);
    int PaginasDelIndice() const;
    void PintarIndice(QPainter& pintor, int total);
    void PintarPie(QPainter& pintor, const QString& capitulo, int pagina, int total);

    QPdfWriter& m_papel;
    Documento m_documento;
    QString m_carpeta;
    std::vector<Trozo> m_trozos;
    std::vector<Entrada> m_entradas;
    std::vector<std::vector<Colocado>> m_paginas;
    std::vector<std::size_t> m_esperan; // figures for the next page
    double m_y = 0;
};

} // namespace pastorix::manual
