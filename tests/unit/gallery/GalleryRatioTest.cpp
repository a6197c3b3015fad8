#include <examples/gallery/GalleryLanguage.h>
#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/PageRegistry.h>

#include <tests/support/TestMain.h>

#include <QAbstractButton>
#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSet>
#include <QStyle>

#include <memory>

/** Every page in both languages, at the ratio that QT_SCALE_FACTOR sets for the process. */
class GalleryRatioTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanupTestCase();
    void everyPageHasRoomAndSharpPictures_data();
    void everyPageHasRoomAndSharpPictures();

private:
    void CheckCaptions();
    void CheckPlaces();
    void CheckPictures();
    QList<QWidget*> Seen() const;

    std::unique_ptr<GalleryWindow> m_pWindow;
    QString m_strLanguage;
};

namespace {
/** What tells a picture apart, whatever its ratio. */
QByteArray Content(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QByteArray content = QByteArray::number(image.width()) + 'x' + QByteArray::number(image.height()) + ' ';
    for (int y = 0; y < image.height(); ++y) {
        content.append(reinterpret_cast<const char*>(image.constScanLine(y)), qsizetype(image.width()) * 4);
    }
    return content;
}

/** The files that have no larger twin: the library's go up to "@2x" or have none, the gallery's to "@3x". */
QSet<QByteArray> LargestFiles()
{
    QSet<QByteArray> contents;
    for (QDirIterator files(QStringLiteral(":/"), {QStringLiteral("*.png"), QStringLiteral("*.gif")}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString file = files.next();
        if (file.contains(QLatin1Char('@'))) {
            continue;
        }
        QString largest = file;
        for (const char* twin : {"@2x", "@3x"}) {
            const QString path = QString(file).insert(file.lastIndexOf(QLatin1Char('.')), QLatin1String(twin));
            largest = QFile::exists(path) ? path : largest;
        }
        contents.insert(Content(QPixmap::fromImage(QImage(largest))));
    }
    return contents;
}

QString Name(const QWidget* widget)
{
    QString name;
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        name = QLatin1String(widget->metaObject()->className()) + QLatin1Char('#') + widget->objectName() +
               QLatin1String(name.isEmpty() ? "" : " < ") + name;
        if (name.size() > 160) {
            break;
        }
    }
    return name;
}
} // namespace

void GalleryRatioTest::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("zh") << QStringLiteral("zh");
    QTest::newRow("en") << QStringLiteral("en");
}

void GalleryRatioTest::init()
{
    QFETCH_GLOBAL(QString, language);
    if (!m_pWindow) {
        m_pWindow = std::make_unique<GalleryWindow>(GalleryOptions());
        m_pWindow->resize(1280, 900);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
    }
    if (m_strLanguage != language) {
        m_strLanguage = language;
        m_pWindow->SetLanguage(language);
        QCoreApplication::processEvents();
    }
}

void GalleryRatioTest::cleanupTestCase()
{
    m_pWindow.reset();
    GalleryLanguage::Use(true);
}

void GalleryRatioTest::everyPageHasRoomAndSharpPictures_data()
{
    QTest::addColumn<QString>("page");
    for (const PageEntry& entry : GalleryPages()) {
        QTest::newRow(qPrintable(entry.strName)) << entry.strName;
    }
}

void GalleryRatioTest::everyPageHasRoomAndSharpPictures()
{
    QFETCH(QString, page);
    QVERIFY(m_pWindow->OpenPage(page));
    QCoreApplication::processEvents();
    // At 1 the variable may be missing.
    const double ratio = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    QCOMPARE(m_pWindow->devicePixelRatio(), ratio);
    CheckCaptions();
    CheckPlaces();
    CheckPictures();
}

QList<QWidget*> GalleryRatioTest::Seen() const
{
    QList<QWidget*> seen;
    const QList<QWidget*> widgets = m_pWindow->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (widget->isVisible() && !widget->isWindow() && widget->width() > 0 && widget->height() > 0) {
            seen.append(widget);
        }
    }
    return seen;
}

void GalleryRatioTest::CheckCaptions()
{
    const QList<QWidget*> widgets = Seen();
    for (QWidget* widget : widgets) {
        // The library's own captions have places that are theirs to choose, and tests of their own.
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool own =
            widget->inherits("CMultiLineLabel") || widget->parentWidget()->inherits("CVelmarMessageListItem");
        const bool plain = label && !own && !label->text().isEmpty() && label->textFormat() != Qt::RichText;
        if (!plain) {
            continue;
        }
        // The ink of one line, for a line may be higher than its label; of several the room that they take.
        const QSize room = label->contentsRect().size();
        const QFontMetrics metrics = label->fontMetrics();
        const QRect text =
            label->wordWrap() || label->text().contains(QLatin1Char('\n'))
                ? metrics.boundingRect(QRect(QPoint(), QSize(room.width(), 10000)), Qt::TextWordWrap, label->text())
                : metrics.tightBoundingRect(label->text());
        QVERIFY2(text.width() <= room.width() + 1 && text.height() <= room.height() + 1,
                 qPrintable(QStringLiteral("\"%1\" needs %2 by %3 and has %4 by %5 in %6")
                                .arg(label->text())
                                .arg(text.width())
                                .arg(text.height())
                                .arg(room.width())
                                .arg(room.height())
                                .arg(Name(label))));
    }
}

void GalleryRatioTest::CheckPlaces()
{
    const QList<QWidget*> widgets = Seen();
    for (const QWidget* widget : widgets) {
        const QWidget* parent = widget->parentWidget();
        // What lies in a viewport may be scrolled out of it.
        if (parent->objectName() == QLatin1String("qt_scrollarea_viewport") ||
            parent->objectName() == QLatin1String("qt_tabwidget_tabbar")) {
            continue;
        }
        QVERIFY2(parent->rect().contains(widget->geometry()),
                 qPrintable(QStringLiteral("%1 by %2 at %3,%4 in %5 by %6: %7")
                                .arg(widget->width())
                                .arg(widget->height())
                                .arg(widget->x())
                                .arg(widget->y())
                                .arg(parent->width())
                                .arg(parent->height())
                                .arg(Name(widget))));
    }
}

void GalleryRatioTest::CheckPictures()
{
    const double ratio = m_pWindow->devicePixelRatio();
    // Between whole ratios the toolkit takes the twin whose size is nearest, which may be the smaller one.
    const double sharp = std::floor(ratio);
    static const QSet<QByteArray> largest = LargestFiles();
    const auto isSharp = [sharp](const QPixmap& pixmap) {
        return pixmap.devicePixelRatio() >= sharp || largest.contains(Content(pixmap));
    };
    const QList<QWidget*> widgets = Seen();
    for (QWidget* widget : widgets) {
        if (const auto* label = qobject_cast<QLabel*>(widget); label && !label->pixmap(Qt::ReturnByValue).isNull()) {
            const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
            QVERIFY2(isSharp(pixmap), qPrintable(Name(label)));
        }
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        // The toolkit's buttons in a field paint their icon at a size of the field's.
        const bool inField = qobject_cast<QLineEdit*>(widget->parentWidget());
        if (button && !inField && !button->icon().isNull()) {
            const QPixmap pixmap = button->icon().pixmap(button->iconSize(), ratio);
            QVERIFY2(isSharp(pixmap), qPrintable(Name(button)));
        }
    }
    const QImage image = m_pWindow->grab().toImage();
    QCOMPARE(image.size(), (QSizeF(m_pWindow->size()) * ratio).toSize());
}

CUSTOMCONTROLS_TEST_MAIN(GalleryRatioTest)
#include "GalleryRatioTest.moc"
