// A small window from which files can be dragged with the mouse: ziehen FILE... Ends behind the first drop.
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

namespace {

class Quelle : public QLabel {
public:
    explicit Quelle(const QStringList& dateien) : QLabel("ziehen") {
        for (const QString& datei : dateien) {
            m_dateien.append(QUrl::fromLocalFile(datei));
        }
        setWindowTitle("ziehen");
        resize(120, 60);
        move(1200, 900);
    }

protected:
    void mousePressEvent(QMouseEvent* /*ereignis*/) override {} // or the moves would go to nobody
    void mouseMoveEvent(QMouseEvent* /*ereignis*/) override {
        auto* inhalt = new QMimeData;
        inhalt->setUrls(m_dateien);
        auto* zug = new QDrag(this);
        zug->setMimeData(inhalt);
        zug->exec(Qt::CopyAction);
        QApplication::quit();
    }

private:
    QList<QUrl> m_dateien;
};

} // namespace

int main(int anzahl, char** argumente) {
    const QApplication anwendung(anzahl, argumente);
    Quelle quelle(QCoreApplication::arguments().mid(1));
    quelle.show();
    return QApplication::exec();
}
