// How the library names what it exports: everything else stays hidden.
#pragma once

#define ORV_EXPORT __attribute__((visibility("default")))
#define ORV_HIDDEN __attribute__((visibility("hidden")))
