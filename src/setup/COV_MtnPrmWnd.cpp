#include "COV_MtnPrmWnd.h"

#include "BoardApi.h"
#include "FieldText.h"
#include "PromptService.h"
#include "RangeMagnification.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {
// The single lists after the magnification, with their group captions, in the page's order.
struct ListGroup
{
    const char* title;
    const char* parameter;
    const char* caption;
};
constexpr ListGroup kListGroups[] = {
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " Speed Mode "), "SpeedMode", nullptr},
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " Command "), "PulseMode", nullptr},
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " Feedback"), "EncoderDirection",
     QT_TRANSLATE_NOOP("COV_MtnPrmWnd", "Direction")},
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " Feedback"), "EncoderMode",
     QT_TRANSLATE_NOOP("COV_MtnPrmWnd", "EA/EB")},
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " Origin Direction "), "OriginDirection", nullptr},
    {QT_TRANSLATE_NOOP("COV_MtnPrmWnd", " COMP Counter "), "CompareCounter", nullptr},
};
} // namespace

COV_MtnPrmWnd::COV_MtnPrmWnd(BoardApi& board, PromptService& prompt, QWidget* parent)
    : ParameterSetupPage(board, ParameterPage::MotionParameter, parent), m_prompt(prompt)
{
    auto* grid = new QGridLayout(this);
    grid->addWidget(createRangeGroup(), 0, 0, 1, 2);

    QGroupBox* feedback = nullptr;
    QGridLayout* feedbackGrid = nullptr;
    int cell = 2;
    for (const ListGroup& entry : kListGroups) {
        QComboBox* list = listFor(entry.parameter);
        m_lists.append(list);
        if (entry.caption != nullptr) {
            // Both feedback lists share one group, each with its caption.
            if (feedback == nullptr) {
                feedback = group(tr(entry.title));
                feedbackGrid = new QGridLayout(feedback);
                grid->addWidget(feedback, cell / 2, cell % 2);
                ++cell;
            }
            const int row = feedbackGrid->rowCount();
            feedbackGrid->addWidget(new QLabel(tr(entry.caption)), row, 0);
            feedbackGrid->addWidget(list, row, 1);
            continue;
        }
        QGroupBox* box = group(tr(entry.title));
        auto* layout = new QVBoxLayout(box);
        layout->addWidget(list);
        layout->addStretch();
        grid->addWidget(box, cell / 2, cell % 2);
        ++cell;
    }
    cell += cell % 2;
    grid->addWidget(createLimitGroup(tr(" Soft-Limit "), {"softLimit", "Plus", "Minus"},
                                     m_softLimitUse, m_softLimitPlus, m_softLimitMinus,
                                     tr("+Soft-Limit"), tr("-Soft-Limit")),
                    cell / 2, 0);
    grid->addWidget(createLimitGroup(tr(" Count Ring "), {"counterRing", "Command", "Actual"},
                                     m_ringUse, m_ringCommand, m_ringActual, tr("Command"),
                                     tr("Actual")),
                    cell / 2, 1);
    grid->setRowStretch(cell / 2 + 1, 1);

    // The two uses exclude each other, so Apply never writes both as in use.
    connect(m_softLimitUse, &QCheckBox::clicked, this, [this](bool on) { useSoftLimit(on); });
    connect(m_ringUse, &QCheckBox::clicked, this, [this](bool on) { useCounterRing(on); });
}

QWidget* COV_MtnPrmWnd::createRangeGroup()
{
    QGroupBox* box = group(tr(" Range Magnification"));
    auto* layout = new QHBoxLayout(box);
    m_magnification = new QComboBox;
    m_magnification->setObjectName(QStringLiteral("RangeMagnification"));
    m_magnification->setEditable(true);
    m_magnification->setInsertPolicy(QComboBox::NoInsert);
    for (int r = 1; r <= RangeMagnification::kItems; ++r)
        m_magnification->addItem(QString::number(r));
    m_magnification->setCurrentIndex(99);
    // Keys and focus changes arrive at the list, which hands them to its edit directly.
    m_magnification->installEventFilter(this);
    m_magnification->setToolTip(
        tr("Speed magnification R (1 to 500): speeds run from R to R x 8000 pps"));
    m_rangeMode = listFor("RangeMode");
    m_range = new QLabel(tr("(100 ~ 800000)"));
    m_range->setObjectName(QStringLiteral("rangeText"));
    layout->addWidget(m_magnification);
    layout->addWidget(m_rangeMode);
    layout->addWidget(m_range, 1);
    connect(m_magnification, &QComboBox::currentIndexChanged, this, [this] { showRange(); });
    return box;
}

QWidget* COV_MtnPrmWnd::createLimitGroup(const QString& title, const Names& names, QCheckBox*& use,
                                         QLineEdit*& first, QLineEdit*& second,
                                         const QString& firstCaption, const QString& secondCaption)
{
    QGroupBox* box = group(title);
    auto* layout = new QGridLayout(box);
    use = new QCheckBox(tr(" Use"));
    use->setObjectName(QLatin1String(names[0]) + QStringLiteral("Use"));
    layout->addWidget(use, 0, 0, 1, 3);
    auto addRow = [&](int row, QLineEdit*& edit, const QString& caption, const char* name) {
        edit = new QLineEdit;
        edit->setObjectName(QLatin1String(names[0]) + QLatin1String(name));
        layout->addWidget(new QLabel(caption), row, 0);
        layout->addWidget(edit, row, 1);
        layout->addWidget(new QLabel(tr("[pulse]")), row, 2);
    };
    addRow(1, first, firstCaption, names[1]);
    addRow(2, second, secondCaption, names[2]);
    return box;
}

void COV_MtnPrmWnd::loadShown(BoardFamily family)
{
    m_family = family;
    const PageParameters board = boardValues(family);
    m_magnification->setCurrentIndex(RangeMagnification::itemOf(board.value("RangeMagnification")));
    showRange();
    select(m_rangeMode, board.value("RangeMode"));
    for (int i = 0; i < m_lists.size(); ++i)
        select(m_lists.at(i), board.value(kListGroups[i].parameter));

    setFieldNumber(m_softLimitPlus, board.value("SoftLimitPlus"));
    setFieldNumber(m_softLimitMinus, board.value("SoftLimitMinus"));
    setFieldNumber(m_ringCommand, board.value("CounterRingCommand"));
    setFieldNumber(m_ringActual, board.value("CounterRingActual"));
    // With both in use on the board the ring wins, since it is shown last.
    useSoftLimit(board.value("SoftLimitUse") != 0);
    useCounterRing(board.value("CounterRingUse") != 0);
}

void COV_MtnPrmWnd::useSoftLimit(bool use)
{
    m_softLimitUse->setChecked(use);
    m_softLimitPlus->setEnabled(use);
    m_softLimitMinus->setEnabled(use);
    if (use) {
        m_ringUse->setChecked(false);
        m_ringCommand->setEnabled(false);
        m_ringActual->setEnabled(false);
    }
}

void COV_MtnPrmWnd::useCounterRing(bool use)
{
    m_ringUse->setChecked(use);
    m_ringCommand->setEnabled(use);
    m_ringActual->setEnabled(use);
    if (use) {
        m_softLimitUse->setChecked(false);
        m_softLimitPlus->setEnabled(false);
        m_softLimitMinus->setEnabled(false);
    }
}

void COV_MtnPrmWnd::showRange()
{
    m_range->setText(RangeMagnification::rangeText(m_magnification->currentText()));
}

PageParameters COV_MtnPrmWnd::shown(BoardFamily family)
{
    // A refused magnification falls back to the board of the family asked for last.
    m_family = family;
    PageParameters values(ParameterPage::MotionParameter, family);
    values.set("RangeMagnification", m_magnification->currentIndex() + 1);
    values.set("RangeMode", m_rangeMode->currentIndex());
    for (int i = 0; i < m_lists.size(); ++i)
        values.set(kListGroups[i].parameter, m_lists.at(i)->currentIndex());
    values.set("SoftLimitPlus", fieldNumber(m_softLimitPlus));
    values.set("SoftLimitMinus", fieldNumber(m_softLimitMinus));
    values.set("SoftLimitUse", m_softLimitUse->isChecked() ? 1 : 0);
    values.set("CounterRingCommand", fieldNumber(m_ringCommand));
    values.set("CounterRingActual", fieldNumber(m_ringActual));
    values.set("CounterRingUse", m_ringUse->isChecked() ? 1 : 0);
    return values;
}

void COV_MtnPrmWnd::takeTypedMagnification(bool onEnter)
{
    int item = 0;
    const auto outcome = RangeMagnification::check(m_magnification->currentText(), item);
    if (outcome == RangeMagnification::Typed::NotNumeric) {
        m_prompt.inform(RangeMagnification::message(outcome));
        return;
    }
    if (outcome == RangeMagnification::Typed::Accepted) {
        m_magnification->setCurrentIndex(item);
        // The same item again emits no change; the typed text still has to go.
        m_magnification->setEditText(m_magnification->itemText(item));
        showRange();
        return;
    }
    const auto reselect = [this] {
        const int board = m_board.GetRangeMode(m_family, m_card, m_axis);
        m_magnification->setCurrentIndex(RangeMagnification::itemOf(board));
        m_magnification->setEditText(m_magnification->currentText());
    };
    if (!onEnter)
        m_prompt.inform(RangeMagnification::message(outcome));
    reselect();
    if (onEnter)
        m_prompt.inform(RangeMagnification::message(outcome));
}

bool COV_MtnPrmWnd::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_magnification && !m_checking) {
        if (event->type() == QEvent::FocusOut) {
            // Opening the drop-down list is no leaving; a message box shown by the check is
            // not either (m_checking).
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
                m_checking = true;
                takeTypedMagnification(false);
                m_checking = false;
            }
        } else if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                m_checking = true;
                takeTypedMagnification(true);
                m_checking = false;
            }
        }
    }
    return ParameterSetupPage::eventFilter(watched, event);
}
