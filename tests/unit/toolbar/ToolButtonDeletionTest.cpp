#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <tests/support/TestMain.h>

#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QStyleOptionToolButton>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <new>

// What is deleted while s_bKeep is set is overwritten with kFreed and kept: the sanitizers don't see what the toolkit's
// own code writes into memory that is no longer its own.
namespace {

constexpr unsigned char kFreed = 0xdd;

struct Block
{
    unsigned char* pData;
    std::size_t iSize;
};
std::array<Block, 1000> s_blocks;
std::size_t s_iBlocks = 0;
bool s_bKeep = false;

void Free(void* data, std::size_t size)
{
    if (s_bKeep && data && s_iBlocks < s_blocks.size()) {
        std::memset(data, kFreed, size);
        s_blocks[s_iBlocks++] = {static_cast<unsigned char*>(data), size};
        return;
    }
    std::free(data);
}

std::size_t LetGoOfTouched()
{
    s_bKeep = false;
    std::size_t touched = 0;
    for (std::size_t i = 0; i < s_iBlocks; ++i) {
        const auto [data, size] = s_blocks[i];
        touched += std::any_of(data, data + size, [](unsigned char byte) { return byte != kFreed; });
        std::free(data);
    }
    s_iBlocks = 0;
    return touched;
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* data = std::malloc(size ? size : 1)) {
        return data;
    }
    throw std::bad_alloc();
}

void operator delete(void* data) noexcept
{
    std::free(data);
}

void operator delete(void* data, std::size_t size) noexcept
{
    Free(data, size);
}

class ToolButtonDeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWriteAfterwardsIsSeen();
    void deletedByItsClick_data();
    void deletedByItsClick();
    void aClickLeavesTheButtonAsItWas();
    void theMenuPartIsForgottenWhenReleased();
};

void ToolButtonDeletionTest::aWriteAfterwardsIsSeen()
{
    struct Bits
    {
        std::array<unsigned char, 64> bytes{};
    };
    auto* bits = new Bits;
    volatile unsigned char* byte = &bits->bytes[5];
    s_bKeep = true;
    delete bits;
    *byte = *byte & 0xf0;
    QCOMPARE(LetGoOfTouched(), std::size_t(1));
}

void ToolButtonDeletionTest::deletedByItsClick_data()
{
    QTest::addColumn<bool>("small");
    QTest::addColumn<bool>("nested");
    QTest::newRow("large, at once") << false << false;
    QTest::newRow("large, in a loop") << false << true;
    QTest::newRow("small, at once") << true << false;
    QTest::newRow("small, in a loop") << true << true;
}

void ToolButtonDeletionTest::deletedByItsClick()
{
    QFETCH(const bool, small);
    QFETCH(const bool, nested);
    QWidget window;
    const QPointer<CToolButton> button = small ? new CToolButtonVertical(&window) : new CToolButton(&window);
    button->resize(60, 60);
    window.resize(200, 200);
    window.show();
    connect(button, &QToolButton::clicked, &window, [&] {
        const auto remove = [&] {
            s_bKeep = true;
            delete button;
        };
        if (!nested) {
            remove();
            return;
        }
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            remove();
            loop.quit();
        });
        loop.exec();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(LetGoOfTouched(), std::size_t(0));
    QVERIFY(!button);
}

void ToolButtonDeletionTest::aClickLeavesTheButtonAsItWas()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    button.setCheckable(true);
    int clicks = 0;
    connect(&button, &QToolButton::clicked, this, [&clicks] { ++clicks; });
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.isDown());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(!button.isDown());
    QVERIFY(button.isChecked());
    QCOMPARE(clicks, 1);
    // Released outside, and by the other mouse button, it was no click.
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-20, -20));
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(clicks, 1);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicks, 2);
    QVERIFY(!button.isChecked());
}

void ToolButtonDeletionTest::theMenuPartIsForgottenWhenReleased()
{
    CToolButton button(nullptr);
    QMenu menu;
    menu.addAction(QStringLiteral("row"));
    connect(&menu, &QMenu::aboutToShow, &menu, [&menu] { QTimer::singleShot(0, &menu, &QMenu::close); });
    button.setPopupMode(QToolButton::MenuButtonPopup);
    button.setMenu(&menu);
    button.resize(100, 60);
    button.show();
    QStyleOptionToolButton option;
    button.initStyleOption(&option);
    const QPoint menuPart =
        button.style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, &button).center();
    const QPoint clickPart(5, 30);
    QVERIFY(button.hitButton(clickPart));
    QTest::mousePress(&button, Qt::LeftButton, {}, menuPart);
    QVERIFY(!button.hitButton(clickPart));
    QTest::mouseRelease(&button, Qt::LeftButton, {}, menuPart);
    QVERIFY(button.hitButton(clickPart));
}

CUSTOMCONTROLS_TEST_MAIN(ToolButtonDeletionTest)
#include "ToolButtonDeletionTest.moc"
