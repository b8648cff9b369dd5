#pragma once

#include "project/projectinfo.h"
#include "report/reportinputs.h"

class FormConfiguration;
class IP_ModeAndConfiguration;

// Collects what the configuration report prints from an open design: the project manager's
// answers, the device, the pins, the peripherals with their modes and parameters, the DMA
// requests, GPIO settings and interrupts of the chip-wide models, and the chip and clock
// pictures drawn from the scenes the user sees.
class ReportInputsBuilder
{
public:
    static ReportInputs fromForm(const FormConfiguration &form, const ProjectInfo &project);

    // One peripheral as its panel stands: the modes that are set and the visible parameters,
    // those that differ from the database marked.
    static ReportPeripheral peripheralOf(const IP_ModeAndConfiguration &panel);
    // Whether the report lists a peripheral: its mode is on, or a parameter was changed.
    static bool isListed(const ReportPeripheral &peripheral);
    // The project facts of section 1.1 and 5.1 from the project manager's answers.
    static ReportProjectFacts projectFacts(const ProjectInfo &project, const QString &series);
};
