#pragma once

#include <QString>

// Reads the project manager's "Minimum Heap Size" and "Minimum Stack Size" texts as
// hexadecimal numbers (a leading "0x" is accepted) and checks each alone against the SRAM
// size in bytes. On failure `problem` holds the message to show, the heap's first.
bool parseProjectSizes(const QString &heapText, const QString &stackText, quint32 sramBytes,
                       quint32 *heap, quint32 *stack, QString *problem);

// Reads one size text; false when it is no hexadecimal number.
bool parseHexSize(const QString &text, quint32 *value);
