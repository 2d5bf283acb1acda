#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <functional>

#include "places/city_editor.h"
#include "shell/resources.h"
#include "uikit/template_dialog.h"

namespace rlx {

struct CityEditing;

/// The form of one city: names, position, time zone, offset and daylight saving, which can be filled in from the zone.
/// Stays open until the city is saved or given up. User-interface thread.
class CCityDialog : public CTemplateDialog {
    Q_OBJECT

public:
    using Save = std::function<CityEdit(const CCityDraft&)>;

    CCityDialog(const CResources& resources, CityEditing& editing, const CCityDraft& draft, const std::u16string& title,
                QWidget* parent = nullptr);

    void SetSave(Save save) { m_save = std::move(save); }

    /// What the last attempt gave.
    const CityEdit& Saved() const { return m_saved; }

    void accept() override;

private:
    QLineEdit* Field(CityField field) const;
    void FillZones();
    void Show(const CCityDraft& draft);
    CCityDraft Typed() const;
    void FillIn();
    void ShowDaylight();
    void ShowFault(const CityFault& fault);

    const CResources& m_resources;
    CityEditing& m_editing;
    Save m_save;
    CityEdit m_saved;
};

}  // namespace rlx
