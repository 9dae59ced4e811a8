// Finding and pressing what the windows show, as a person does.
#pragma once

#include "support/Text.h"

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace zepholt::hilfen {

using Tat = std::function<void()>;

inline QString AusText(TextSicht text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline QWidget* Offen(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(name)) {
            return widget;
        }
    }
    return nullptr;
}

inline QWidget* Haupt() {
    return Offen("frmZEPHOLT");
}

// The box that is open, or null. A box has no name of its own.
inline QMessageBox* Box() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

template <class Art>
Art* Kind(QWidget* eltern, const char* name) {
    return eltern == nullptr ? nullptr : eltern->findChild<Art*>(QLatin1String(name));
}

inline QPushButton* Antwort(const QMessageBox& box, TextSicht text) {
    for (QAbstractButton* knopf : box.buttons()) {
        if (knopf->text() == AusText(text)) {
            return qobject_cast<QPushButton*>(knopf);
        }
    }
    return nullptr;
}

// Does `tat` once, at the first processing of events at which `bedingung` holds: how a test reaches into a modal window
// that stands in front of it, and into a run.
inline void Sobald(std::function<bool()> bedingung, Tat tat) {
    auto* wecker = new QTimer(qApp);
    QObject::connect(wecker, &QTimer::timeout, wecker, [=, tat = std::move(tat)] {
        if (bedingung()) {
            wecker->stop();
            wecker->deleteLater();
            tat();
        }
    });
    wecker->start(0);
}

// What waits still is not done any more.
inline void WartendeVergessen() {
    for (QTimer* wecker : qApp->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
        delete wecker;
    }
}

inline void Klicke(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton);
}

} // namespace zepholt::hilfen
