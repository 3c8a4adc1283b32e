// Entries of the Bessel family. They return the value itself, or write it, without a status.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/special/airy.h"
#include "stats/special/bessel_i.h"
#include "stats/special/bessel_j.h"
#include "stats/special/bessel_k.h"
#include "stats/special/bessel_y.h"
#include "stats/special/kelvin.h"
#include "stats/special/spherical_bessel.h"
#include "stats/special/struve.h"

using namespace quorvan;

QV_EXPORT double ZemFunc301(double order, double x) { return SpecBesselY(order, x); }

QV_EXPORT double ZemFunc302(double order, double x) { return SpecBesselJ(order, x); }

QV_EXPORT double ZemFunc303(std::uint32_t n, double x) { return SpecSphericalJ(n, x); }

QV_EXPORT double ZemFunc304(std::uint32_t n, double x) { return SpecSphericalY(n, x); }

QV_EXPORT double ZemFunc305(double order, double x) { return SpecBesselI(order, x); }

QV_EXPORT double ZemFunc306(std::uint32_t n, double x) { return SpecBesselK(n, x); }

QV_EXPORT double ZemFunc328(double order, double x) { return SpecStruve(order, x); }

QV_EXPORT void ZemFunc330(double x, double* ai, double* bi) { SpecAiry(x, ai, bi, nullptr, nullptr); }

QV_EXPORT void ZemFunc333(double x, std::uint32_t n, ComplexRecord* out) { SpecKelvinBe(x, n, out); }

QV_EXPORT void ZemFunc334(double x, std::uint32_t n, ComplexRecord* out) { SpecKelvinKe(x, n, out); }
