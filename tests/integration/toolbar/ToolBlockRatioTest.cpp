#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <tests/support/TestMain.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstring>

namespace {

// A ratio is fixed when the application starts, so each is looked at in a process of its own, which this makes.
constexpr char kLook[] = "--look";

struct File
{
    const char* suffix;
    Qt::GlobalColor color;
    int scale;
};
constexpr File kFiles[] = {{"", Qt::red, 1}, {"@2x", Qt::green, 2}, {"@3x", Qt::blue, 3}};

// What a block's buttons show at the ratio of this process: for each the colour in the middle of its icon and the
// icon's extent, in pixels of the device.
int Look(const QString& folder)
{
    QTextStream out(stdout);
    CToolBarItem block(QStringLiteral("Block"), nullptr);
    const QString icon = folder + QStringLiteral("/icon.png");
    block.AddItem(icon, QStringLiteral("x"), 0, QString());
    block.AddItemVertical({icon}, {QStringLiteral("x")}, {0}, {QString()});
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    block.grab(); // lays the buttons out
    for (CToolButton* button : buttons) {
        const QImage image = button->grab().toImage();
        const int x = button->IsVerticalBtn() ? 4 + 12 : button->width() / 2;
        const int y = button->IsVerticalBtn() ? button->height() / 2 : 4 + 12;
        const qreal ratio = image.devicePixelRatio();
        const QColor color = image.pixelColor(qRound(x * ratio), qRound(y * ratio));
        int wide = 0;
        for (int column = 0; column < image.width(); ++column) {
            wide += image.pixelColor(column, qRound(y * ratio)) == color ? 1 : 0;
        }
        out << color.name() << ' ' << wide << ' ' << button->iconSize().width() << '\n';
    }
    return 0;
}

} // namespace

/** A block's pictures at several device pixel ratios. */
class ToolBlockRatioTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ratioPicksTheFile_data();
    void ratioPicksTheFile();
};

void ToolBlockRatioTest::ratioPicksTheFile_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QString>("color");
    QTest::addColumn<int>("width");
    QTest::newRow("1") << "1"
                       << "#ff0000" << 24;
    QTest::newRow("1.5") << "1.5"
                         << "#00ff00" << 36;
    QTest::newRow("2") << "2"
                       << "#00ff00" << 48;
    QTest::newRow("3") << "3"
                       << "#0000ff" << 72;
}

void ToolBlockRatioTest::ratioPicksTheFile()
{
    QFETCH(QString, ratio);
    QFETCH(QString, color);
    QFETCH(int, width);
    const QTemporaryDir folder;
    for (const File& file : kFiles) {
        QImage image(24 * file.scale, 24 * file.scale, QImage::Format_ARGB32);
        image.fill(file.color);
        QVERIFY(image.save(folder.filePath(QStringLiteral("icon%1.png").arg(QLatin1String(file.suffix)))));
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TEST_KEEP_SCALE"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), ratio);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kLook), folder.path()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QString expected = QStringLiteral("%1 %2 24").arg(color).arg(width);
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines, QStringList(2, expected));
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    QApplication app(argc, argv);
    const TestEnvironment environment;
    if (argc > 2 && std::strcmp(argv[1], kLook) == 0) {
        return Look(QString::fromLocal8Bit(argv[2]));
    }
    ToolBlockRatioTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ToolBlockRatioTest.moc"
