#pragma once

#include <QObject>
#include <QTest>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Test classes of one executable. PRUEBA(Class) in a source file adds the class to the list that principal.cpp runs;
// HOME, settings and today's date are temporary by construction, and any warning that Qt prints fails the test.
namespace prueba {
using Fabrica = std::function<std::unique_ptr<QObject>()>;
std::vector<Fabrica>& Lista();
struct Alta {
    explicit Alta(Fabrica f) { Lista().push_back(std::move(f)); }
};
// Warnings whose text contains this are expected until the end of the current test function.
void EsperarAviso(const char* trozo);

using namespace std::string_literals;
using namespace Qt::StringLiterals;

// The columns of a data table, and one row of it; C texts arrive as QString.
template <typename... T, typename... Nombre>
void Columnas(Nombre... nombres) {
    (QTest::addColumn<T>(nombres), ...);
}
template <typename... T>
void Caso(const char* nombre, T... valores) {
    (QTest::newRow(nombre) << ... << valores);
}
// Columns, and a row, of a data table that is all texts.
inline void ColumnasDeTexto(std::initializer_list<const char*> nombres) {
    for (const char* nombre : nombres)
        QTest::addColumn<QString>(nombre);
}
inline void FilaDeTextos(const char* nombre, std::initializer_list<QString> textos) {
    auto& fila = QTest::newRow(nombre);
    for (const QString& texto : textos)
        fila << texto;
}
} // namespace prueba

#define PRUEBA(Clase)                                                                                        \
    static const prueba::Alta alta_##Clase([] { return std::unique_ptr<QObject>(new Clase); });
