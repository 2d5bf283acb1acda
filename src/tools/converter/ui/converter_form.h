#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "shell/texts.h"
#include "tools/converter/ui/converter_layout.h"
#include "uikit/look.h"
#include "uikit/search_combo.h"

namespace rlx {

/// The fields and buttons of the converter page on their panel. Knows no units: what is chosen and typed it tells, what
/// is to be seen it is given. References must outlive it.
class CConverterForm : public QWidget {
    Q_OBJECT

public:
    /// `recent` opens from the button of the recent pairs.
    CConverterForm(const ITexts& texts, const CLook& look, QMenu& recent, QWidget* parent);

    /// The units to choose from; `search` is called while a list is open.
    void ShowUnits(const QStringList& names, const EntrySearch& search);
    void ShowChoice(std::size_t category, std::size_t from, std::size_t to);
    void ShowValue(const QString& text) { m_value->setText(text); }
    void ShowResult(const QString& text);

    /// Puts the cursor into the value, all of it selected.
    void FocusValue();

    /// Puts the result on the clipboard and says so.
    void CopyResult();

    void TakeColours();

signals:
    void CategoryChosen(int index);
    void FromChosen(int index);
    void ToChosen(int index);
    void ValueEdited(const QString& text);
    void ValueEntered();
    void SwapWanted();
    void CopyWanted();
    void ResetWanted();
    void EditWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeSelectors();
    void MakeFields();
    void MakeButtons(QMenu& recent);
    QPushButton* MakeButton(const char* name, int text);
    QToolButton* MakeIconButton(const char* name, int text);
    void OrderTabs();
    void ConnectAll();
    QString Text(int id) const;

    const ITexts& m_texts;
    const CLook& m_look;
    ConverterLayout m_layout;
    QComboBox* m_category = nullptr;
    QLabel* m_fromCaption = nullptr;
    QLabel* m_toCaption = nullptr;
    CSearchCombo* m_from = nullptr;
    CSearchCombo* m_to = nullptr;
    QLineEdit* m_value = nullptr;
    QLineEdit* m_result = nullptr;
    QToolButton* m_swap = nullptr;
    QToolButton* m_copy = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_recent = nullptr;
    QPushButton* m_edit = nullptr;
};

}  // namespace rlx
