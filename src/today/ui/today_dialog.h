#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "shell/resources.h"
#include "today/today_options.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The two options of the home-screen summary. They are written when the dialog closes, whichever way it does.
/// References must outlive it. User-interface thread.
class CTodayDialog : public CTemplateDialog {
    Q_OBJECT

public:
    CTodayDialog(CRegistryStore& settings, const CResources& resources, QWidget* parent = nullptr);

    void done(int result) override;

private:
    CRegistryStore& m_settings;
    QComboBox* m_cities;
    QCheckBox* m_rates;
};

}  // namespace rlx
