// Special functions, one value a call, beside GSL where it is found; bench/run.py adds SciPy.
//
// A timing is of kPoints values spread evenly over the interval, ends included.
#include <cmath>

#include "quorvan/quorvan.h"
#include "support/buffer.h"
#include "support/runner.h"

#if defined(QUORVAN_BENCH_GSL)
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf.h>
#include <gsl/gsl_version.h>
#define QV_RIVAL(expression) [](double x) -> double { return expression; }
#else
#define QV_RIVAL(expression) nullptr
#endif

namespace {

using bench::Buffer;
using bench::Ratios;
using bench::Runner;
using bench::Times;

constexpr std::int64_t kPoints = 1000;

using Function = double (*)(double);

struct Case {
    const char* name;
    double from, to;
    Function quorvan, gsl;
};

double JacobiSine(double u) {
    double sn, cn, dn, phi;
    ZemFunc332(u, 0.7, &sn, &cn, &dn, &phi);
    return sn;
}

double FresnelSine(double x) {
    double s, c;
    ZemFunc331(x, &s, &c);
    return s;
}

#if defined(QUORVAN_BENCH_GSL)
double GslJacobiSine(double u) {
    double sn, cn, dn;
    gsl_sf_elljac_e(u, 0.7, &sn, &cn, &dn);
    return sn;
}
#endif


double AiryAi(double x) {
    double ai, bi;
    ZemFunc330(x, &ai, &bi);
    return ai;
}

double Ber(double x) {
    QvComplex out;
    ZemFunc333(x, 0, &out);
    return out.re;
}

double Ker(double x) {
    QvComplex out;
    ZemFunc334(x, 0, &out);
    return out.re;
}

// Intervals and parameters as bench/rivals.py gives them to SciPy.
const Case kCases[] = {
    {"gamma", 0.1, 30.0, [](double x) { return ZemFunc309(x, nullptr); }, QV_RIVAL(gsl_sf_gamma(x))},
    {"ln_gamma", 0.1, 100.0, [](double x) { return ZemFunc312(x); }, QV_RIVAL(gsl_sf_lngamma(x))},
    {"digamma", 0.1, 50.0, [](double x) { return ZemFunc313(x); }, QV_RIVAL(gsl_sf_psi(x))},
    {"gamma_p", 0.1, 20.0, [](double x) { return ZemFunc309(2.5, &x); }, QV_RIVAL(gsl_sf_gamma_inc_P(2.5, x))},
    {"beta_i", 0.01, 0.99, [](double x) { return ZemFunc307(2.5, 1.5, &x); }, QV_RIVAL(gsl_sf_beta_inc(2.5, 1.5, x))},
    {"zeta_m1", 1.5, 20.0, [](double x) { return ZemFunc329(x); }, QV_RIVAL(gsl_sf_zetam1(x))},
    {"elliptic_k", 0.0, 0.99, [](double x) { return ZemFunc318(x, nullptr); },
     QV_RIVAL(gsl_sf_ellint_Kcomp(std::sqrt(x), GSL_PREC_DOUBLE))},
    {"elliptic_e", 0.0, 0.99, [](double x) { return ZemFunc319(x, nullptr); },
     QV_RIVAL(gsl_sf_ellint_Ecomp(std::sqrt(x), GSL_PREC_DOUBLE))},
    {"elliptic_f", 0.1, 1.5, [](double x) { return ZemFunc318(0.7, &x); },
     QV_RIVAL(gsl_sf_ellint_F(x, std::sqrt(0.7), GSL_PREC_DOUBLE))},
    {"elliptic_ei", 0.1, 1.5, [](double x) { return ZemFunc319(0.7, &x); },
     QV_RIVAL(gsl_sf_ellint_E(x, std::sqrt(0.7), GSL_PREC_DOUBLE))},
    {"jacobi_sn", -5.0, 5.0, JacobiSine, QV_RIVAL(GslJacobiSine(x))},
    {"dawson", -10.0, 10.0, ZemFunc320, QV_RIVAL(gsl_sf_dawson(x))},
    {"fresnel_s", -10.0, 10.0, FresnelSine, nullptr},
    {"expint_3", 0.1, 20.0, [](double x) { return ZemFunc321(x, 3); }, QV_RIVAL(gsl_sf_expint_En(3, x))},
    {"sine_int", 0.1, 20.0, ZemFunc322, QV_RIVAL(gsl_sf_Si(x))},
    {"cosine_int", 0.1, 20.0, ZemFunc323, QV_RIVAL(gsl_sf_Ci(x))},
    {"sinh_int", 0.1, 20.0, ZemFunc325, QV_RIVAL(gsl_sf_Shi(x))},
    {"cosh_int", 0.1, 20.0, ZemFunc324, QV_RIVAL(gsl_sf_Chi(x))},
    {"hyperg_1f1", -10.0, 10.0, [](double x) { return ZemFunc316(x, 1.3, 2.7); },
     QV_RIVAL(gsl_sf_hyperg_1F1(1.3, 2.7, x))},
    {"hyperg_u", 0.1, 20.0, [](double x) { return ZemFunc317(x, 1.3, 2.7); }, QV_RIVAL(gsl_sf_hyperg_U(1.3, 2.7, x))},
    {"hyperg_2f1", -0.9, 0.9, [](double x) { return ZemFunc386(x, 1.3, 0.4, 2.7); },
     QV_RIVAL(gsl_sf_hyperg_2F1(1.3, 0.4, 2.7, x))},
    {"hyperg_2f1_t", -0.9, 0.9, [](double x) { return ZemFunc315(x, 1.3, 0.4, 2.7); },
     QV_RIVAL(gsl_sf_hyperg_2F1(1.3, 0.4, 2.7, x))},
    {"parabolic", 0.0, 2.0, [](double x) { return ZemFunc327(x, 0.5); }, nullptr},


    {"bessel_j0", 0.1, 50.0, [](double x) { return ZemFunc302(0, x); }, QV_RIVAL(gsl_sf_bessel_J0(x))},
    {"bessel_y0", 0.1, 50.0, [](double x) { return ZemFunc301(0, x); }, QV_RIVAL(gsl_sf_bessel_Y0(x))},
    {"bessel_j1", 0.1, 50.0, [](double x) { return ZemFunc302(1, x); }, QV_RIVAL(gsl_sf_bessel_J1(x))},
    {"bessel_y1", 0.1, 50.0, [](double x) { return ZemFunc301(1, x); }, QV_RIVAL(gsl_sf_bessel_Y1(x))},
    {"bessel_j5", 0.1, 50.0, [](double x) { return ZemFunc302(5, x); }, QV_RIVAL(gsl_sf_bessel_Jn(5, x))},
    {"bessel_jv", 0.1, 50.0, [](double x) { return ZemFunc302(2.3, x); }, QV_RIVAL(gsl_sf_bessel_Jnu(2.3, x))},
    {"bessel_yv", 0.1, 50.0, [](double x) { return ZemFunc301(2.3, x); }, QV_RIVAL(gsl_sf_bessel_Ynu(2.3, x))},
    {"bessel_j40", 0.1, 100.0, [](double x) { return ZemFunc302(40.5, x); }, QV_RIVAL(gsl_sf_bessel_Jnu(40.5, x))},
    {"spherical_j", 0.1, 50.0, [](double x) { return ZemFunc303(3, x); }, QV_RIVAL(gsl_sf_bessel_jl(3, x))},
    {"spherical_y", 0.1, 50.0, [](double x) { return ZemFunc304(3, x); }, QV_RIVAL(gsl_sf_bessel_yl(3, x))},
    {"bessel_i0", 0.1, 50.0, [](double x) { return ZemFunc305(0, x); }, QV_RIVAL(gsl_sf_bessel_I0(x))},
    {"bessel_iv", 0.1, 50.0, [](double x) { return ZemFunc305(2.3, x); }, QV_RIVAL(gsl_sf_bessel_Inu(2.3, x))},
    {"bessel_i5", 0.1, 50.0, [](double x) { return ZemFunc305(5, x); }, QV_RIVAL(gsl_sf_bessel_In(5, x))},
    {"bessel_k0", 0.1, 50.0, [](double x) { return ZemFunc306(0, x); }, QV_RIVAL(gsl_sf_bessel_K0(x))},
    {"bessel_k5", 0.1, 50.0, [](double x) { return ZemFunc306(5, x); }, QV_RIVAL(gsl_sf_bessel_Kn(5, x))},
    {"struve", 0.1, 50.0, [](double x) { return ZemFunc328(0.5, x); }, nullptr},
    {"struve_0", 0.1, 50.0, [](double x) { return ZemFunc328(0, x); }, nullptr},
    {"airy", -20.0, 20.0, [](double x) { return AiryAi(x); }, QV_RIVAL(gsl_sf_airy_Ai(x, GSL_PREC_DOUBLE))},
    {"kelvin_be", 0.1, 30.0, [](double x) { return Ber(x); }, nullptr},
    {"kelvin_ke", 0.1, 30.0, [](double x) { return Ker(x); }, nullptr},
};

void Fill(Function function, const double* x, double* out) {
    for (std::int64_t i = 0; i < kPoints; ++i) out[i] = function(x[i]);
}

void Check(const Case& c, const double* x) {
    for (std::int64_t i = 0; i < kPoints && c.gsl != nullptr; ++i) {
        const double ours = c.quorvan(x[i]), theirs = c.gsl(x[i]);
        if (!(std::fabs(ours - theirs) <= 1e-9 * std::fabs(theirs) + 1e-12)) {
            bench::Refuse(std::string(c.name) + " of " + std::to_string(x[i]) + ": " + std::to_string(ours) + ", GSL " +
                          std::to_string(theirs));
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    Runner runner(argc, argv);
#if defined(QUORVAN_BENCH_GSL)
    benchmark::AddCustomContext("gsl", GSL_VERSION);
    gsl_set_error_handler_off();
#endif
    std::FILE* text = runner.Text();
    Ratios ratios;
    std::fprintf(text, "\n  function       ns a value      GSL\n");
    for (const Case& c : kCases) {
        Buffer<double> points(kPoints), values(kPoints);
        double *x = points, *out = values;
        for (std::int64_t i = 0; i < kPoints; ++i) {
            x[i] = c.from + (c.to - c.from) * static_cast<double>(i) / (kPoints - 1);
        }
        Check(c, x);
        runner.Add("quorvan", [=, f = c.quorvan] { Fill(f, x, out); });
        if (c.gsl != nullptr) runner.Add("gsl", [=, f = c.gsl] { Fill(f, x, out); });
        Times t = runner.Run(std::string("special_") + c.name, kPoints);
        std::fprintf(text, "  %-13s %11.2f", c.name, t["quorvan"] / kPoints * 1e9);
        if (c.gsl != nullptr) {
            ratios.Add(t["gsl"] / t["quorvan"]);
            std::fprintf(text, " %8.2f", t["gsl"] / t["quorvan"]);
        }
        std::fprintf(text, "\n");
        std::fflush(text);
    }
    if (ratios.Count() > 0) std::fprintf(text, "  %-62s %6.2f\n", "over GSL: geometric mean", ratios.Mean());
    return runner.Finish();
}
