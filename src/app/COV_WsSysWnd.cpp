#include "COV_WsSysWnd.h"

#include "AppState.h"
#include "BoardStartup.h"
#include "BoardTexts.h"
#include "FrameRelay.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>

#include <utility>

namespace {
constexpr int kImageRole = Qt::UserRole + 1;

// The board layer words versions as parameter files carry them; the tree shows their caption
// in the user's language.
std::string withShownCaption(const std::string& text, const std::string& caption,
                             const QString& shown)
{
    if (text.rfind(caption, 0) != 0)
        return text;
    return shown.toStdString() + text.substr(caption.size());
}

std::size_t at(BoardFamily family)
{
    return static_cast<std::size_t>(familyIndex(family));
}
std::size_t at(int card)
{
    return static_cast<std::size_t>(card);
}
} // namespace

COV_WsSysWnd::COV_WsSysWnd(AppState& state, BoardStartup& startup, FrameRelay& frame,
                           QWidget* parent)
    : QTreeWidget(parent), m_state(state), m_startup(startup), m_frame(frame)
{
    setHeaderHidden(true);
    setColumnCount(1);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        m_selectedLabel = item ? plainLabel(item) : std::string();
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { activateItem(item); });
    m_state.registry.setChangedListener(
        [this](BoardFamily family, int card, bool) { showChangedMark(family, card); });
}

COV_WsSysWnd::~COV_WsSysWnd()
{
    m_state.registry.setChangedListener({});
}

void COV_WsSysWnd::showChangedMark(BoardFamily family, int card)
{
    QTreeWidgetItem* item = cardItem(family, card);
    if (item == nullptr)
        return;
    // An asterisk after the label, as editors mark a document with unsaved changes.
    const std::string& label = m_cardLabels[at(family)][at(card)];
    const bool changed = m_state.registry.parametersChanged(family, card);
    item->setText(0, QString::fromStdString(changed ? label + "*" : label));
    item->setToolTip(0, changed ? tr("Parameters written to the board but not saved to its "
                                     "parameter file")
                                : QString());
}

std::string COV_WsSysWnd::plainLabel(const QTreeWidgetItem* item) const
{
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < kMaxCards; ++card) {
            if (m_cards[at(family)][at(card)] == item)
                return m_cardLabels[at(family)][at(card)];
        }
    }
    return item->text(0).toStdString();
}

QIcon COV_WsSysWnd::imageIcon(Image image)
{
    // The style's stock pictures stand in for the tree's image list.
    static const std::pair<Image, QStyle::StandardPixmap> kPictures[] = {
        {FamilyImage, QStyle::SP_ComputerIcon},
        {CardImage, QStyle::SP_DriveHDIcon},
        {AxisImage, QStyle::SP_ArrowRight},
        {IoImage, QStyle::SP_DialogApplyButton},
        {FirmwareImage, QStyle::SP_FileDialogInfoView},
        {VersionImage, QStyle::SP_FileIcon}};
    for (const auto& [each, picture] : kPictures) {
        if (each == image)
            return QApplication::style()->standardIcon(picture);
    }
    return QIcon();
}

QTreeWidgetItem* COV_WsSysWnd::familyItem(BoardFamily family) const
{
    return isKnownFamily(family) ? m_families[at(family)] : nullptr;
}

QTreeWidgetItem* COV_WsSysWnd::cardItem(BoardFamily family, int card) const
{
    if (!isKnownFamily(family) || card < 0 || card >= kMaxCards)
        return nullptr;
    return m_cards[at(family)][at(card)];
}

void COV_WsSysWnd::handleUserMessage(UserMessage message, int wParam, int lParam)
{
    switch (message) {
    case UM_TREE_BUILD:
        build();
        break;
    case UM_SELECT_BOARD:
        selectByNumbers(static_cast<BoardFamily>(wParam), lParam);
        break;
    case UM_CONTROLLER_CHANGED:
        selectByLabel();
        break;
    case UM_SELECT_CARD:
    case UM_CARD_CHANGED:
        selectByNumbers(m_state.active.family, wParam);
        break;
    default:
        break;
    }
}

QTreeWidgetItem* COV_WsSysWnd::addItem(QTreeWidgetItem* parent, const std::string& label,
                                       Image image)
{
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    item->setText(0, QString::fromStdString(label));
    item->setIcon(0, imageIcon(image));
    item->setData(0, kImageRole, static_cast<int>(image));
    return item;
}

void COV_WsSysWnd::build()
{
    clear();
    m_families.fill(nullptr);
    for (auto& cards : m_cards)
        cards.fill(nullptr);
    for (auto& labels : m_cardLabels)
        labels.fill(std::string());

    const CardRegistry& registry = m_state.registry;
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < registry.cardCount(family); ++card) {
            const std::int32_t firmware = m_startup.readCardInfo(family, static_cast<CardNo>(card));
            if (card == 0) {
                m_families[at(family)] = addItem(nullptr, familyDisplayName(family), FamilyImage);
                addItem(m_families[at(family)],
                        withShownCaption(m_startup.libraryVersionText(family),
                                         "Dll Ver. : ", tr("Dll Ver. : ")),
                        VersionImage);
            }
            const std::string label = BoardTexts::cardLabel(card, registry.modelName(family, card));
            m_cardLabels[at(family)][at(card)] = label;
            QTreeWidgetItem* cardNode = addItem(m_families[at(family)], label, CardImage);
            m_cards[at(family)][at(card)] = cardNode;
            showChangedMark(family, card);
            addItem(cardNode,
                    tr("Axis : ").toStdString() + std::to_string(registry.axisCount(family, card)),
                    AxisImage);
            addItem(cardNode,
                    tr("IO : ").toStdString() + std::to_string(registry.ioCount(family, card)),
                    IoImage);
            addItem(cardNode,
                    withShownCaption(BoardTexts::firmwareText(family, firmware),
                                     "Firmware Ver. : ", tr("Firmware Ver. : ")),
                    FirmwareImage);
            m_families[at(family)]->setExpanded(true);
            cardNode->setExpanded(true);
        }
    }

    m_state.active.card = 0;
    for (BoardFamily family : kAllFamilies) {
        if (registry.hasBoards(family)) {
            m_state.active.family = family;
            m_state.active.previousFamily = family;
            break;
        }
    }
    markActive(true);
    m_frame.sendToFrame(UM_TREE_BUILD);
}

void COV_WsSysWnd::markActive(bool bold)
{
    for (QTreeWidgetItem* item : {familyItem(m_state.active.family),
                                  cardItem(m_state.active.family, m_state.active.card)}) {
        if (item == nullptr)
            continue;
        QFont font = item->font(0);
        font.setBold(bold);
        item->setFont(0, font);
    }
}

void COV_WsSysWnd::selectByLabel()
{
    if (!m_frame.mayChangeController())
        return;
    m_state.active.previousFamily = m_state.active.family;
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < kMaxCards; ++card) {
            const std::string& label = m_cardLabels[at(family)][at(card)];
            if (label.empty() || label != m_selectedLabel)
                continue;
            markActive(false);
            m_state.active.card = card;
            m_state.active.family = family;
            markActive(true);
            m_frame.sendToFrame(UM_CONTROLLER_CHANGED);
            return;
        }
    }
}

void COV_WsSysWnd::selectByNumbers(BoardFamily family, int card)
{
    if (!m_frame.mayChangeController())
        return;
    markActive(false);
    m_state.active.previousFamily = m_state.active.family;
    m_state.active.family = family;
    m_state.active.card = card;
    markActive(true);
    m_frame.sendToFrame(UM_CONTROLLER_CHANGED);
}

bool COV_WsSysWnd::isCardLabel(const std::string& label) const
{
    for (const auto& labels : m_cardLabels) {
        for (const std::string& each : labels) {
            if (!each.empty() && each == label)
                return true;
        }
    }
    return false;
}

QMenu* COV_WsSysWnd::createContextMenu(QTreeWidgetItem* item)
{
    if (item == nullptr || !isCardLabel(plainLabel(item)))
        return nullptr;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* action = menu->addAction(tr("Set Active Controller"));
    connect(action, &QAction::triggered, this, [this] { emit setActiveControllerRequested(); });
    return menu;
}

QRect COV_WsSysWnd::iconAndLabelRect(QTreeWidgetItem* item) const
{
    const QRect cell = visualItemRect(item);
    const int iconWidth = item->icon(0).isNull() ? 0 : iconSize().width() + kLabelMargin;
    const int labelWidth = QFontMetrics(item->font(0)).horizontalAdvance(item->text(0));
    return QRect(cell.left(), cell.top(), iconWidth + labelWidth + 2 * kLabelMargin, cell.height());
}

void COV_WsSysWnd::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint position = event->pos();
    QTreeWidgetItem* item = nullptr;
    if (event->reason() == QContextMenuEvent::Mouse) {
        item = itemAt(position);
        if (item != nullptr)
            setCurrentItem(item);
        // Only a click on the icon or the label counts, not one in the empty rest of the row.
        if (item != nullptr && !iconAndLabelRect(item).contains(position))
            item = nullptr;
    } else {
        item = currentItem();
        position = QPoint(5, 5);
    }
    if (QMenu* menu = createContextMenu(item))
        menu->popup(viewport()->mapToGlobal(position));
}

void COV_WsSysWnd::keyPressEvent(QKeyEvent* event)
{
    // Enter does what a double click does, for keyboard users.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        activateItem(currentItem());
        event->accept();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void COV_WsSysWnd::activateItem(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    const QTreeWidgetItem* activeCard = cardItem(m_state.active.family, m_state.active.card);
    if (activeCard == nullptr || item->parent() != activeCard)
        return;
    const QString label = item->text(0);
    if (label.contains(tr("IO : ")))
        m_frame.sendToFrame(UM_OPEN_TOOL, ToolDigitalIo);
    else if (label.contains(tr("Axis : ")))
        m_frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
}
