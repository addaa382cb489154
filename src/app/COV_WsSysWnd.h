#pragma once

#include "BoardFamily.h"
#include "UserMessage.h"

#include <QTreeWidget>

#include <array>
#include <string>

class BoardStartup;
class FrameRelay;
class QMenu;
struct AppState;

// The workspace tree: every installed board with its library and firmware versions, axis
// and I/O counts. It fills the card registry while it builds, marks the active controller in
// bold and is where the active controller changes.
class COV_WsSysWnd : public QTreeWidget
{
    Q_OBJECT

public:
    // The image numbers of the tree's items.
    static constexpr int kLabelMargin = 4;

    enum Image
    {
        FamilyImage = 0,
        FirmwareImage = 4,
        VersionImage = 5,
        CardImage = 7,
        IoImage = 11,
        AxisImage = 16
    };

    COV_WsSysWnd(AppState& state, BoardStartup& startup, FrameRelay& frame,
                 QWidget* parent = nullptr);
    ~COV_WsSysWnd() override;

    // UM_TREE_BUILD, UM_SELECT_BOARD (wParam family, lParam card), UM_CONTROLLER_CHANGED (the
    // last selected card label), UM_SELECT_CARD and UM_CARD_CHANGED (wParam card).
    void handleUserMessage(UserMessage message, int wParam = 0, int lParam = 0);

    QTreeWidgetItem* familyItem(BoardFamily family) const;
    QTreeWidgetItem* cardItem(BoardFamily family, int card) const;
    // The context menu for an item: only card items have one ("Set Active Controller").
    QMenu* createContextMenu(QTreeWidgetItem* item);
    // Where a right click on the item counts: its icon and label, in viewport coordinates.
    QRect iconAndLabelRect(QTreeWidgetItem* item) const;
    // What a double click on an item does.
    void activateItem(QTreeWidgetItem* item);

signals:
    // The user chose "Set Active Controller"; the frame decides whether the change may happen.
    void setActiveControllerRequested();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    QTreeWidgetItem* addItem(QTreeWidgetItem* parent, const std::string& label, Image image);
    void selectByLabel();
    void selectByNumbers(BoardFamily family, int card);
    void markActive(bool bold);
    bool isCardLabel(const std::string& label) const;
    // A card's label without its unsaved-changes mark; other items' text as it is.
    std::string plainLabel(const QTreeWidgetItem* item) const;
    void showChangedMark(BoardFamily family, int card);
    static QIcon imageIcon(Image image);

    AppState& m_state;
    BoardStartup& m_startup;
    FrameRelay& m_frame;
    std::array<QTreeWidgetItem*, kFamilyCount> m_families{};
    std::array<std::array<QTreeWidgetItem*, kMaxCards>, kFamilyCount> m_cards{};
    std::array<std::array<std::string, kMaxCards>, kFamilyCount> m_cardLabels{};
    std::string m_selectedLabel;
};
