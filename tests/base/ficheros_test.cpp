// SPDX-License-Identifier: MIT

#include "norvik/base/ficheros.hpp"

#include "apoyo/carpetaTemporal.hpp"
#include "apoyo/repite.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

using namespace norvik;

namespace {

namespace fs = std::filesystem;
using namespace apoyo;

std::u16string mensajeDe(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const ErrorDeFichero& error) {
        return error.texto();
    }
    return u"(ningún error)";
}

TEST(Ficheros, EligeLaCodificacionQueDevuelveElTexto) {
    const std::string marca = "\xEF\xBB\xBF";
    const std::tuple<const char*, std::u16string, std::string> filas[] = {
        {"vacío", u"", ""},
        {"ASCII con NUL", std::u16string{u'a', 0, u'b'}, std::string("a\0b", 3)},
        {"byte suelto", u"año €", "a\xF1o \x80"},
        {"fuera de Windows-1252", u"Δ", marca + "\xCE\x94"},
        {"se leería como UTF-8", u"Ã±", marca + "\xC3\x83\xC2\xB1"},
        {"se leería como una marca", u"ï»¿", marca + "\xC3\xAF\xC2\xBB\xC2\xBF"},
        {"empieza por la marca", u"\uFEFFa", marca + marca + "a"},
        {"par de sustitutos", u"\U0001F600", marca + "\xF0\x9F\x98\x80"},
    };
    for (const auto& [nombre, texto, bytes] : filas) {
        EXPECT_EQ(codifica(texto), bytes) << nombre;
        EXPECT_EQ(decodifica(bytes), texto) << nombre;
    }
    EXPECT_EQ(decodifica("a\xC3\xB1o"), u"año");
    EXPECT_EQ(decodifica(marca + "\xFF"), u"ï»¿ÿ");
    EXPECT_THROW(codifica(std::u16string{u'a', 0xDC00}), ErrorDeFichero);
}

TEST(Ficheros, PorTrozosSeLeeLoMismo) {
    const CarpetaTemporal carpeta;
    for (const std::string& bytes :
         {std::string(), repite("\xEF\xBB\xBF", 2), repite("a\xF1o ", 50000), repite("a\xF1", 50000),
          repite("\xCE\x94", 90000), repite("\xF0\x9F\x98\x80\r\n", 30000),
          "\xEF\xBB\xBF" + repite("\xCE\x94x", 70000) + "\xFF"}) {
        TextoPorTrozos fichero(carpeta.pon("f.txt", bytes));
        std::u16string texto;
        for (auto trozo = fichero.siguiente(); !trozo.empty(); trozo = fichero.siguiente()) texto += trozo;
        EXPECT_TRUE(texto == decodifica(bytes)) << bytes.size();
    }
}

TEST(Ficheros, NormalizaLosFinalesDeLinea) {
    const std::pair<std::u16string_view, std::u16string_view> filas[] = {{u"", u""},
                                                                         {u"\n", u""},
                                                                         {u"a", u"a"},
                                                                         {u"a\r\n", u"a"},
                                                                         {u"a\rb\nc\r\n", u"a\r\nb\r\nc"},
                                                                         {u"\n\r", u"\r\n"},
                                                                         {u"a\n\n", u"a\r\n"},
                                                                         {u"\r\r\n", u"\r\n"},
                                                                         {u"\r\n\r\n\r\n", u"\r\n\r\n"}};
    for (const auto& [entrada, salida] : filas)
        EXPECT_EQ(normalizaLineas(entrada), salida) << testing::PrintToString(entrada);
}

TEST(Ficheros, LosErroresDeLecturaNombranElFicheroYLaCausa) {
    const CarpetaTemporal carpeta;
    carpeta.pon("texto", "x");
    fs::create_symlink("bucle", carpeta / "bucle");
    const std::pair<std::string, std::u16string> filas[] = {
        {"ñandú.txt", u"no existe"},
        {".", u"es una carpeta"},
        {"texto/otro", u"una parte de la ruta no es una carpeta"},
        {"bucle", u"demasiados enlaces simbólicos"},
        {std::string(300, 'n'), u"el nombre es demasiado largo"},
        {std::string("texto\0b", 7), u"el nombre o la operación no son válidos"},
    };
    for (const auto& [nombre, causa] : filas) {
        const fs::path fichero = carpeta / nombre;
        EXPECT_EQ(mensajeDe([&] { leeBytes(fichero); }),
                  u"No se puede leer «" + decodifica(fichero.native()) + u"»: " + causa);
    }
    EXPECT_EQ(mensajeDe([] { leeBytes("/dev/zero"); }),
              u"No se puede leer «/dev/zero»: el fichero es demasiado grande");
    const fs::path enorme = carpeta.pon("enorme", "\xF1");
    fs::resize_file(enorme, maximoDeFichero + 1);
    EXPECT_EQ(mensajeDe([&] { const TextoPorTrozos texto(enorme); }),
              u"No se puede leer «" + decodifica(enorme.native()) + u"»: el fichero es demasiado grande");
}

TEST(Ficheros, LosErroresDeEscrituraDejanElAntiguoYNadaMas) {
    const CarpetaTemporal carpeta;
    const fs::path antiguo = carpeta.pon("antiguo", "antes");
    fs::create_directory(carpeta / "carpeta");
    fs::create_symlink("bucle", carpeta / "bucle");
    const std::pair<const char*, std::u16string> filas[] = {
        {"no/hay", u"la carpeta no existe"},
        {"carpeta", u"es una carpeta"},
        {"antiguo/x", u"una parte de la ruta no es una carpeta"},
        {"bucle", u"demasiados enlaces simbólicos"},
    };
    for (const auto durabilidad : {Durabilidad::Normal, Durabilidad::EnDisco})
        for (const auto& [nombre, causa] : filas) {
            const fs::path fichero = carpeta / nombre;
            EXPECT_EQ(mensajeDe([&] { escribeBytes(fichero, "después", durabilidad); }),
                      u"No se puede escribir «" + decodifica(fichero.native()) + u"»: " + causa);
        }
    EXPECT_THROW(escribeTexto(antiguo, std::u16string(1, 0xD800), Durabilidad::EnDisco), ErrorDeFichero);
    EXPECT_EQ(bytesDe(antiguo), "antes");
    EXPECT_EQ(carpeta.entradas(), 3U);
    EXPECT_EQ(mensajeDe([] { escribeBytes("/dev/full", "x", Durabilidad::Normal); }),
              u"No se puede escribir «/dev/full»: no queda espacio en el disco");
}

TEST(Ficheros, SinSitioParaElNuevoQuedaElAntiguo) {
    const CarpetaTemporal carpeta;
    const fs::path antiguo = carpeta.pon("antiguo", "antes");
    rlimit limite{};
    getrlimit(RLIMIT_FSIZE, &limite);
    const rlimit pequeno{4096, limite.rlim_max};
    auto* const manejador = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &pequeno);
    const std::u16string mensaje =
        mensajeDe([&] { escribeBytes(antiguo, std::string(5000, 'x'), Durabilidad::EnDisco); });
    setrlimit(RLIMIT_FSIZE, &limite);
    std::signal(SIGXFSZ, manejador);
    EXPECT_EQ(mensaje, u"No se puede escribir «" + decodifica(antiguo.native()) +
                           u"»: el fichero es demasiado grande");
    EXPECT_EQ(bytesDe(antiguo), "antes");
    EXPECT_EQ(carpeta.entradas(), 1U);
}

TEST(Ficheros, ConservaPermisosYSigueEnlaces) {
    const CarpetaTemporal carpeta;
    const fs::path fichero = carpeta.pon("fichero", "antes");
    fs::create_directory(carpeta / "otra");
    fs::create_symlink("../fichero", carpeta / "otra/enlace");
    fs::create_symlink("nuevo", carpeta / "colgado");
    chmod(fichero.c_str(), 0640);

    escribeTexto(carpeta / "otra/enlace", u"año", Durabilidad::EnDisco);
    escribeBytes(carpeta / "colgado", "x", Durabilidad::Normal);

    EXPECT_EQ(leeTexto(fichero), u"año");
    EXPECT_EQ(fs::status(fichero).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::is_symlink(carpeta / "otra/enlace"));
    EXPECT_EQ(bytesDe(carpeta / "nuevo"), "x");
    EXPECT_EQ(carpeta.entradas(), 4U);
}

TEST(Ficheros, UnFicheroConOtroNombreSigueSiendoElMismo) {
    const CarpetaTemporal carpeta;
    const fs::path fichero = carpeta.pon("fichero", "lo de antes, más largo");
    fs::create_hard_link(fichero, carpeta / "otro");
    for (const auto durabilidad : {Durabilidad::EnDisco, Durabilidad::Normal})
        escribeBytes(fichero, durabilidad == Durabilidad::Normal ? "corto" : "después", durabilidad);
    EXPECT_EQ(bytesDe(carpeta / "otro"), "corto");
    EXPECT_EQ(fs::hard_link_count(fichero), 2U);
    EXPECT_EQ(carpeta.entradas(), 2U);
}

TEST(Ficheros, LoQueDejoUnProcesoMuertoSeQuita) {
    const CarpetaTemporal carpeta;
    const fs::path fichero = carpeta.pon("fichero", "antes");
    const pid_t muerto = fork();
    if (muerto == 0) {
        try { // ends in the middle of writing
            escribeTexto(
                fichero, [](const SumideroDeTexto& /*sumidero*/) { _exit(0); }, Durabilidad::EnDisco);
        } catch (...) {
            _exit(1);
        }
    }
    int estado = 0;
    ASSERT_EQ(waitpid(muerto, &estado, 0), muerto);
    EXPECT_EQ(carpeta.entradas(), 2U);
    EXPECT_EQ(bytesDe(fichero), "antes");
    escribeBytes(carpeta.pon("vecino", ""), "x", Durabilidad::Normal);
    EXPECT_EQ(carpeta.entradas(), 3U);
    escribeBytes(fichero, "después", Durabilidad::Normal);
    EXPECT_EQ(carpeta.entradas(), 2U);
}

struct Guardado {
    const char* nombre;
    mode_t modo;
    uid_t duenio;
    mode_t carpeta;
    bool puede;
    uid_t duenioDespues;
};

// One of the group, who is nobody else: what they save stays the group's.
TEST(Ficheros, UnMiembroDelGrupoNoSeLoQuitaALosDemas) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can be somebody else";
    constexpr uid_t ana = 54321;
    constexpr gid_t equipo = 54322;
    constexpr Guardado filas[] = {
        {"carpeta del equipo", 0660, 0, 0770, true, ana}, {"el suyo", 0660, ana, 0770, true, ana},
        {"carpeta con sello", 0660, 0, 01770, true, 0},   {"carpeta de solo leer", 0660, 0, 0750, true, 0},
        {"carpeta sin leer", 0660, 0, 0730, true, ana},   {"fichero de solo leer", 0640, 0, 0770, false, 0},
    };
    for (const auto& [nombre, modo, duenio, deCarpeta, puede, despues] : filas) {
        const CarpetaTemporal carpeta;
        const fs::path fichero = carpeta.pon("fichero", "antes");
        ASSERT_EQ(chown(fichero.c_str(), duenio, equipo) | chmod(fichero.c_str(), modo), 0);
        const std::string enQue = fichero.parent_path().native();
        ASSERT_EQ(chown(enQue.c_str(), 0, equipo) | chmod(enQue.c_str(), deCarpeta), 0);
        const pid_t hijo = fork();
        if (hijo == 0) {
            const gid_t grupos[] = {equipo};
            if (setgroups(1, grupos) != 0 || setgid(ana) != 0 || setuid(ana) != 0) _exit(9);
            _exit(mensajeDe([&] { escribeBytes(fichero, "x", Durabilidad::EnDisco); }) == u"(ningún error)"
                      ? 0
                      : 1);
        }
        int estado = 0;
        ASSERT_EQ(waitpid(hijo, &estado, 0), hijo);
        EXPECT_EQ(WEXITSTATUS(estado), puede ? 0 : 1) << nombre;
        struct stat ahora {};
        ASSERT_EQ(stat(fichero.c_str(), &ahora), 0);
        EXPECT_EQ(ahora.st_uid, despues) << nombre;
        EXPECT_EQ(ahora.st_gid, equipo) << nombre;
        EXPECT_EQ(ahora.st_mode & 07777U, modo) << nombre;
        EXPECT_EQ(bytesDe(fichero), puede ? "x" : "antes") << nombre;
        EXPECT_EQ(carpeta.entradas(), 1U) << nombre;
    }
}

TEST(Ficheros, ListasDeAccesoYAtributosSeConservan) {
    const CarpetaTemporal carpeta;
    const fs::path fichero = carpeta.pon("fichero", "antes");
    // As the system keeps it: owner rw, user 54321 rw, group r, at most rw, others nothing.
    const std::string lista("\2\0\0\0\1\0\6\0\377\377\377\377\2\0\6\0\x31\xD4\0\0\4\0\4\0\377\377\377\377"
                            "\x10\0\6\0\377\377\377\377\x20\0\0\0\377\377\377\377",
                            44);
    const std::pair<const char*, std::string> filas[] = {{"user.autor", "ana"},
                                                         {"system.posix_acl_access", lista}};
    for (const auto& [nombre, valor] : filas)
        if (setxattr(fichero.c_str(), nombre, valor.data(), valor.size(), 0) != 0)
            GTEST_SKIP() << "no such attributes here";
    struct stat antes {};
    struct stat ahora {};
    ASSERT_EQ(stat(fichero.c_str(), &antes), 0);
    escribeBytes(fichero, "después", Durabilidad::EnDisco);
    ASSERT_EQ(stat(fichero.c_str(), &ahora), 0);
    EXPECT_NE(ahora.st_ino, antes.st_ino) << "another file that took its place";
    for (const auto& [nombre, valor] : filas) {
        std::string suyo(100, '?');
        const ssize_t largo = getxattr(fichero.c_str(), nombre, suyo.data(), suyo.size());
        EXPECT_EQ(suyo.substr(0, static_cast<std::size_t>(std::max<ssize_t>(0, largo))), valor) << nombre;
    }
}

// In a folder that gives what is new a list of its own nobody comes to a file who had no way to it.
TEST(Ficheros, LaListaDeLaCarpetaNoEsDelFichero) {
    const CarpetaTemporal carpeta;
    const fs::path fichero = carpeta.pon("fichero", "antes");
    ASSERT_EQ(chmod(fichero.c_str(), 0660), 0);
    // Owner rw, user 54321 rw, group rw, at most rw, others nothing.
    const std::string lista("\2\0\0\0\1\0\6\0\377\377\377\377\2\0\6\0\x31\xD4\0\0\4\0\6\0\377\377\377\377"
                            "\x10\0\6\0\377\377\377\377\x20\0\0\0\377\377\377\377",
                            44);
    if (setxattr(carpeta.ruta().c_str(), "system.posix_acl_default", lista.data(), lista.size(), 0) != 0)
        GTEST_SKIP() << "no such lists here";
    for (const auto durabilidad : {Durabilidad::Normal, Durabilidad::EnDisco}) {
        escribeBytes(fichero, "después", durabilidad);
        EXPECT_LT(getxattr(fichero.c_str(), "system.posix_acl_access", nullptr, 0), 0);
        EXPECT_EQ(fs::status(fichero).permissions(), fs::perms(0660));
    }
    escribeBytes(carpeta / "nuevo", "x", Durabilidad::Normal);
    EXPECT_EQ(getxattr((carpeta / "nuevo").c_str(), "system.posix_acl_access", nullptr, 0), 44)
        << "what is new is as its folder says";
}

TEST(Ficheros, UnaTuberiaSeEscribeDirectamente) {
    const CarpetaTemporal carpeta;
    const fs::path tuberia = carpeta / "tuberia";
    ASSERT_EQ(mkfifo(tuberia.c_str(), 0600), 0);
    std::string leido;
    fs::create_symlink("tuberia", carpeta / "enlace");
    std::thread lector([&] { leido = leeBytes(tuberia); });
    escribeBytes(carpeta / "enlace", "hola", Durabilidad::EnDisco);
    lector.join();
    EXPECT_EQ(leido, "hola");
    EXPECT_TRUE(fs::is_fifo(tuberia));
}

} // namespace
