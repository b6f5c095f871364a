#pragma once

#include "DeviceRecord.h"

/// The values of an amplifier as an installer leaves it; `number` from 0.
DeviceRecord installedAmplifier(int number);

/// Of a mixer: 0 at front of house, 1 for the monitors.
DeviceRecord installedMixer(int number);

/// Of the matrix between mixers and amplifiers.
DeviceRecord installedMatrix();
