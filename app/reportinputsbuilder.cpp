#include "app/reportinputsbuilder.h"

#include "app/formconfiguration.h"
#include "app/version.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/systempanelsupport.h"
#include "pinout/chipview.h"
#include "project/devicefacts.h"
#include "report/reportpicture.h"
#include "report/reportrows.h"

#include <QHash>
#include <QLabel>

ReportProjectFacts ReportInputsBuilder::projectFacts(const ProjectInfo &project,
                                                     const QString &series)
{
    ReportProjectFacts facts;
    facts.projectName = project.projectName;
    facts.projectFolder = project.projectFolder();
    facts.toolchain = project.toolchainIDE;
    if (project.useFirmware && !project.packageVersion.isEmpty())
        facts.firmwarePackage = devicefacts::packageName(series, project.packageVersion);
    facts.minHeapSize = project.minHeapSize;
    facts.minStackSize = project.minStackSize;
    facts.version = QStringLiteral(MQ48_VERSION_SHORT);
    return facts;
}

ReportPeripheral ReportInputsBuilder::peripheralOf(const IP_ModeAndConfiguration &panel)
{
    ReportPeripheral out;
    out.instance = panel.instanceName();
    out.enabled = panel.modeActive();
    for (const auto &selection : panel.modeSelections())
        out.modes << ReportNameValue{selection.first, selection.second};
    const ParamSettingWidget *params = panel.paramSettingWidget();
    if (!params)
        return out;
    QHash<QString, const RefParameter *> originals;
    for (const RefParameter &p : params->originalParameters())
        originals.insert(p.Name, &p);
    const QStringList enabled = params->evaluationList();
    for (const RefParameter &p : params->parameters) {
        if (!params->isParameterVisible(p))
            continue;
        out.parameters << ReportRows::parameterRow(p, originals.value(p.Name), enabled);
    }
    return out;
}

bool ReportInputsBuilder::isListed(const ReportPeripheral &peripheral)
{
    if (peripheral.enabled)
        return true;
    for (const ReportParameterRow &row : peripheral.parameters) {
        if (row.changed)
            return true;
    }
    return false;
}

ReportInputs ReportInputsBuilder::fromForm(const FormConfiguration &form,
                                           const ProjectInfo &project)
{
    const DesignData &design = form.design();
    ReportInputs in;
    in.project = projectFacts(project, design.series);

    in.mcu.series = design.series;
    in.mcu.name = design.mcuName;
    in.mcu.package = design.package;
    in.mcu.flash = design.catalogueRow.Flash;
    in.mcu.sram = design.catalogueRow.SRAM;
    in.mcu.maxSram = design.catalogueRow.MaxSRAM;
    in.pins = ReportRows::pinRows(design.devicePinInfo);
    in.mcu.pinCount = in.pins.size();
    in.pinNotes = ReportRows::pinNotes(design.series);

    if (ChipView *chip = form.chipDrawing())
        in.chipPicture = ReportPicture::renderScene(chip->scene());
    if (MQ48PLLConfig *clock = form.clockPage()) {
        if (MQ48ClockTree *tree = clock->tree())
            in.clockPicture = ReportPicture::renderScene(tree->scene());
        else if (clock->note())
            in.clockNote = clock->note()->text();
    }

    for (const IP_ModeAndConfiguration *panel : form.modePanels()) {
        const ReportPeripheral peripheral = peripheralOf(*panel);
        if (isListed(peripheral))
            in.peripherals << peripheral;
    }

    for (const DmaRequestModel *model : form.dmaModels()) {
        ReportDmaController controller;
        controller.edma = model->isEdma();
        for (const DMARequest &request : model->requests())
            controller.requests << ReportRows::dmaRequest(request, controller.edma);
        in.dma << controller;
    }
    if (const GpioSettingsModel *gpio = form.gpioModel())
        in.gpio = ReportRows::gpioRows(gpio->rows());
    if (const NvicModel *nvic = form.nvicModel()) {
        in.nvic = ReportRows::nvicRows(nvic->rows());
        in.priorityGroup = nvic->priorityGroup();
        for (const RefParamValue &group : nvic->priorityGroups()) {
            if (group.Value == nvic->priorityGroup()) {
                const QString en = group.CommentEN.isEmpty() ? group.Comment : group.CommentEN;
                const QString text = SystemPanelSupport::databaseText(en, group.CommentCH);
                if (!text.isEmpty())
                    in.priorityGroup = text;
            }
        }
    }
    return in;
}
