#pragma once

#include "app/designdocument.h"

#include <QString>
#include <QStringList>

#include <functional>

class FormConfiguration;

// Between an open work form and a design file: what the panels hold is collected into a
// design document, and a document is replayed through the panels in the order that makes the
// couplings between peripherals come out as they were.

// The design as the panels hold it now, blocks in their fixed order, with the project
// manager's answers.
DesignDocument collectDesign(const FormConfiguration &form);

// Replays a document through the panels of a form already built for its device. Every setting
// that could not be applied is listed, one line each; the rest is applied. `step` is called
// after each step of the replay (for a progress bar), with the number of the step from 1.
QStringList applyDesign(FormConfiguration &form, const DesignDocument &doc,
                        const std::function<void(int step)> &step = {});
// The number of steps applyDesign() reports.
constexpr int kDesignReplaySteps = 9;

// Why a design could not be opened.
enum class DesignOpenStatus {
    Opened,
    NotFound,           // "File is not exists!"
    NoDeviceInfo,       // unreadable, not a design, or no device information
    DeviceNotSupported, // series or device not in the catalogue
    PackageNotSupported,
    BuildFailed, // the device's database files could not be read
};

struct DesignOpenResult
{
    DesignOpenStatus status = DesignOpenStatus::NoDeviceInfo;
    QStringList problems;     // settings that could not be applied
    bool newerFormat = false; // the file says it was written by a newer format
    DesignDocument document;  // as read
};

// Reads a design file, checks its device against the catalogue, builds the form for it and
// replays it. Nothing of the form changes unless the device is known.
DesignOpenResult openDesignFile(FormConfiguration &form, const QString &path,
                                const std::function<void(int step)> &step = {});

// The message of an open that failed, as the user reads it ("Open file error, ...").
QString designOpenMessage(DesignOpenStatus status);
