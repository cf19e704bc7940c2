#pragma once

#include <QTest>
#ifdef QT_WIDGETS_LIB
#include <QtWidgets>
#else
#include <QtCore>
#endif

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace pastorix {}

// Test classes of one executable. PRUEBA(Class) in a source file adds the class to the list that principal.cpp runs;
// HOME, settings and today's date are temporary by construction, and any warning that Qt prints fails the test.
namespace prueba {
using namespace pastorix;

using Fabrica = std::function<std::unique_ptr<QObject>()>;
std::vector<Fabrica>& Lista();
struct Alta {
    explicit Alta(Fabrica f) { Lista().push_back(std::move(f)); }
};
// Warnings whose text contains this are expected until the end of the current test function.
void EsperarAviso(const char* trozo);

using namespace std::string_literals;
using namespace Qt::StringLiterals;

inline QString Q(const std::string& texto) {
    return QString::fromStdString(texto);
}
inline QString Q(const char* texto) {
    return QString::fromUtf8(texto);
}
inline QString Q(const QByteArray& texto) {
    return QString::fromUtf8(texto);
}
// What a file holds; nothing when it cannot be read.
inline QByteArray Contenido(const QString& fichero) {
    QFile f(fichero);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Whether this is the first row of the running function's data table.
bool PrimeraFila();
inline constexpr const char* kNombresDeCaso[] = {"0", "1", "2", "3", "4", "5", "6", "7"};
template <typename T>
using DeColumna =
    std::conditional_t<std::is_same_v<std::decay_t<const T>, const char*>, QString, std::decay_t<const T>>;

// One row of a data table; the first one makes the columns, of the types of its values. C texts arrive as QString.
template <typename... T>
void Caso(const char* nombre, const T&... valores) {
    if (std::size_t i = 0; PrimeraFila())
        (QTest::addColumn<DeColumna<T>>(kNombresDeCaso[i++]), ...);
    (QTest::newRow(nombre) << ... << DeColumna<T>(valores));
}
// The values of the running row, into variables or as they come.
template <typename... T>
void DelCaso(T&... valores) {
    std::size_t i = 0;
    ((valores = *static_cast<T*>(QTest::qData(kNombresDeCaso[i++], qMetaTypeId<T>()))), ...);
}
template <typename... T>
requires(sizeof...(T) > 0) auto DelCaso() {
    std::tuple<T...> fila;
    std::apply([](T&... valores) { DelCaso(valores...); }, fila);
    if constexpr (sizeof...(T) == 1)
        return std::get<0>(fila);
    else
        return fila;
}
#ifdef QT_WIDGETS_LIB
inline void Teclas(QWidget* donde, std::initializer_list<Qt::Key> teclas) {
    for (const Qt::Key tecla : teclas)
        QTest::keyClick(donde, tecla);
}
#endif
} // namespace prueba

#define PRUEBA(Clase)                                                                                        \
    static const prueba::Alta alta_##Clase([] { return std::unique_ptr<QObject>(new Clase); });
