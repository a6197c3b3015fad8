#include "GalleryStyle.h"

QString GalleryStyle::CommandButton(bool primary)
{
    return primary ? QStringLiteral("QPushButton{border:1px solid transparent;background:#188553;color:#ffffff;"
                                    "border-radius:4px;padding:0 18px;}"
                                    "QPushButton:hover{background:#2ab475;}"
                                    "QPushButton:pressed{background:#126641;}"
                                    "QPushButton:focus{border:1px solid #58ff98;}"
                                    "QPushButton:disabled{background:#bcd9cb;}")
                   : QStringLiteral("QPushButton{border:1px solid #c4c4c4;background:#ffffff;color:#333333;"
                                    "border-radius:4px;padding:0 18px;}"
                                    "QPushButton:hover{border-color:#188553;color:#188553;}"
                                    "QPushButton:pressed{background:#e4f2eb;}"
                                    "QPushButton:focus{border-color:#188553;}"
                                    "QPushButton:disabled{color:#b0b0b0;border-color:#e2e2e2;}");
}

QString GalleryStyle::Menu()
{
    return QStringLiteral(
        "QMenu{background:#ffffff;border:1px solid #c4c4c4;padding:4px;}"
        "QMenu::item{color:#333333;background:transparent;border-radius:3px;padding:6px 28px 6px 10px;}"
        "QMenu::item:selected{background:#e4f2eb;color:#188553;}"
        "QMenu::item:disabled{background:transparent;color:#b0b0b0;}"
        "QMenu::icon{padding-left:8px;}");
}

QString GalleryStyle::ScrollBars()
{
    return QStringLiteral("QScrollBar:vertical{border:none;background:transparent;width:10px;margin:0;}"
                          "QScrollBar::handle:vertical{background:#cfcfcf;min-height:40px;border-radius:5px;}"
                          "QScrollBar::handle:vertical:hover{background:#aaaaaa;}"
                          "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{border:none;height:0;}"
                          "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:none;}"
                          "QScrollBar:horizontal{border:none;background:transparent;height:10px;margin:0;}"
                          "QScrollBar::handle:horizontal{background:#cfcfcf;min-width:40px;border-radius:5px;}"
                          "QScrollBar::handle:horizontal:hover{background:#aaaaaa;}"
                          "QScrollBar::add-line:horizontal,QScrollBar::sub-line:horizontal{border:none;width:0;}"
                          "QScrollBar::add-page:horizontal,QScrollBar::sub-page:horizontal{background:none;}");
}
