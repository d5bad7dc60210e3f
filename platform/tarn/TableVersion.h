/// The version of the contract between tarn and the tables that korva-schemac writes for it.
#pragma once

/// Each generated unit of tarn checks it.
#define TARN_TABLE_VERSION 1
