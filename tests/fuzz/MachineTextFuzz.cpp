#include <tests/fuzz/FuzzTarget.h>

#include <CustomControls/machine/CSelectMachineBox.h>

#include <CorvaneBase/CorvaneConstants.h>

#include <QMap>
#include <QStandardItemModel>
#include <QStringList>

// Machine texts, one per line. A "!" in front keeps machines off USB out of the list, a line "~" empties it. The list
// is compared with one that is kept here in the plainest way.

namespace {

struct Row
{
    QString strSerial;
    QString strIp;
    QString strInterface;
    int iPriority;
};

class PlainList
{
public:
    QList<Row> m_listRows;
    QHash<QString, QString> m_hashKnown;

    void Take(const QString& text, bool usbOnly)
    {
        const QStringList fields = text.split(QLatin1Char('*'));
        if (fields.size() < 4 || fields[1].isEmpty() || fields[3] == QLatin1String("0.0.0.0")) {
            return;
        }
        Row row{fields[1], fields[3], fields.value(5, QStringLiteral("wlan0")), 0};
        if (fields.size() < 6) {
            row.strInterface = QStringLiteral("wlan0");
        }
        row.iPriority = (QStringList{QStringLiteral("wlan0"), QStringLiteral("eth0"), QStringLiteral("usb0")})
                            .indexOf(row.strInterface) +
                        1;
        for (Row& known : m_listRows) {
            if (known.strSerial == row.strSerial) {
                if (row.iPriority > known.iPriority) {
                    m_hashKnown.remove(known.strIp);
                    m_hashKnown.insert(row.strIp, row.strSerial);
                    known = row;
                }
                return;
            }
        }
        m_hashKnown.insert(row.strIp, row.strSerial);
        if (!usbOnly || row.iPriority == 3) {
            m_listRows.append(row);
        }
    }
};

} // namespace

void FuzzOne(FuzzInput& input)
{
    static CSelectMachineBox panel(nullptr);
    PlainList plain;
    while (!input.AtEnd()) {
        const QString line = QString::fromUtf8(input.Until('\n'));
        if (line == QLatin1String("~")) {
            panel.ClearBoxInfo();
            plain = {};
            continue;
        }
        const bool usbOnly = line.startsWith(QLatin1Char('!'));
        const QString text = usbOnly ? line.mid(1) : line;
        panel.SetMachineInfo(text, usbOnly);
        plain.Take(text, usbOnly);
    }

    FUZZ_CHECK(panel.m_pModel->rowCount() == plain.m_listRows.size());
    FUZZ_CHECK(panel.m_hashIpToSn == plain.m_hashKnown);
    for (int i = 0; i < plain.m_listRows.size(); ++i) {
        const Row& row = plain.m_listRows.at(i);
        const QStandardItem* item = panel.m_pModel->item(i, 1);
        FUZZ_CHECK(item->text() == row.strSerial);
        FUZZ_CHECK(item->data(CSelectMachineBox::RoleSerial).toString() == row.strSerial);
        FUZZ_CHECK(item->data(CSelectMachineBox::RoleIp).toString() == row.strIp);
        FUZZ_CHECK(item->data(CSelectMachineBox::RoleInterface).toString() == row.strInterface);
        FUZZ_CHECK(item->data(CSelectMachineBox::RolePriority).toInt() == row.iPriority);
        panel.RowClicked(item->index());
        FUZZ_CHECK(panel.m_strMachineIP == row.strIp && panel.m_strMachineNum == row.strSerial);
    }
    panel.ClearBoxInfo();
    FuzzSettle();
}
