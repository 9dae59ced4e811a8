#include "window/qt/Anzeigepruefung.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QStringList>

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstring>
#include <memory>

namespace zepholt {

namespace {

struct Trennen {
    void operator()(xcb_connection_t* verbindung) const { xcb_disconnect(verbindung); }
};

// The connection stays until the process ends: a server whose last client leaves may start afresh, and whoever comes in
// that moment, Qt here, is refused.
bool XServerAntwortet() {
    static const std::unique_ptr<xcb_connection_t, Trennen> verbindung(xcb_connect(nullptr, nullptr));
    return xcb_connection_has_error(verbindung.get()) == 0;
}

bool WaylandAntwortet() {
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty()) {
        return false;
    }
    const QByteArray pfad = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(pfad.size()) >= sizeof adresse.sun_path) {
        return false;
    }
    std::memcpy(adresse.sun_path, pfad.constData(), static_cast<std::size_t>(pfad.size()));
    const int steckdose = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool antwortet =
        steckdose >= 0 && connect(steckdose, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) == 0;
    if (steckdose >= 0) {
        close(steckdose);
    }
    return antwortet;
}

// Where Qt looks for its parts for displays, in its order.
QStringList PlattformOrdner() {
    QStringList ordner = {qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    const QStringList weitere = qEnvironmentVariable("QT_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QString& pfad : weitere) {
        ordner.append(pfad + QStringLiteral("/platforms"));
    }
    ordner.append(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    ordner.removeAll(QString());
    return ordner;
}

// True when Qt's part for this display is there with all that it needs itself. It stays loaded: Qt takes it next.
bool PlattformLadbar(const QByteArray& name) {
    const QString datei = QStringLiteral("/libq%1.so").arg(QString::fromLocal8Bit(name));
    for (const QString& ordner : PlattformOrdner()) {
        const QByteArray pfad = QFile::encodeName(ordner + datei);
        if (dlopen(pfad.constData(), RTLD_LAZY | RTLD_LOCAL) != nullptr) {
            return true;
        }
    }
    return false;
}

bool WaylandBrauchbar() {
    return WaylandAntwortet() && (PlattformLadbar("wayland-generic") || PlattformLadbar("wayland-egl"));
}

bool XBrauchbar() {
    return XServerAntwortet() && PlattformLadbar("xcb");
}

} // namespace

bool AnzeigeVorhanden() {
    const QByteArray verlangt = qgetenv("QT_QPA_PLATFORM");
    const QByteArray name = verlangt.split(';').first().split(':').first(); // the first choice, without its arguments
    if (name.startsWith("wayland")) {
        return WaylandBrauchbar();
    }
    if (!name.isEmpty() && name != "xcb") {
        return PlattformLadbar(name);
    }
    if (XBrauchbar()) {
        return true;
    }
    return name.isEmpty() && WaylandBrauchbar() && qputenv("QT_QPA_PLATFORM", "wayland");
}

bool VerbindungGestoert(xcb_connection_t* verbindung) {
    return verbindung != nullptr && xcb_connection_has_error(verbindung) != 0;
}

} // namespace zepholt
