// The SDK's functions are exported through the SDK's .def files; the host-side functions of
// tx_host/project.h through this mark (natively TX_HOST_API already makes them visible).
#pragma once

#ifdef _WIN32
#define TX_HOST_SIDE_EXPORT __declspec(dllexport)
#else
#define TX_HOST_SIDE_EXPORT
#endif
