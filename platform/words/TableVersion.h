/// The version of the contract between words and tarn and the tables that korva-schemac writes for
/// them.
#pragma once

/// Each generated unit of either checks it.
#define TARN_TABLE_VERSION 1
