#pragma once

/// Marks what libkite.so.1 exports; everything else in it is hidden.
#define KITE_EXPORT __attribute__((visibility("default")))
