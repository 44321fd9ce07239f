// What the delivered constants have to do with each other.
#pragma once

#include <cmath>
#include <string_view>
#include <utility>

#include "support/delivered_values.h"

namespace kav::test {

using From = const Values&;

/// How a row, named by symbol and unit, follows from others.
struct Relation {
  std::string_view row;
  Real (*value)(From);
};

inline const Relation kRelations[] = {
    // exact ones:
    {"hbar (J s)", [](From r) { return r["h (J s)"] / (2 * kPi); }},
    {"h (eV s)", [](From r) { return r["h (J s)"] / r["e (C)"]; }},
    {"hbar (eV s)", [](From r) { return r["hbar (J s)"] / r["e (C)"]; }},
    {"hbar c (MeV fm)", [](From r) { return r["hbar (eV s)"] * r["c (m/s)"] * 1e9; }},
    {"e/hbar (A/J)", [](From r) { return r["e (C)"] / r["hbar (J s)"]; }},
    {"Phi_0 (Wb)", [](From r) { return r["h (J s)"] / (2 * r["e (C)"]); }},
    {"G_0 (S)", [](From r) { return 2 * r["e (C)"] * r["e (C)"] / r["h (J s)"]; }},
    {"1/G_0 (ohm)", [](From r) { return 1 / r["G_0 (S)"]; }},
    {"K_J (Hz/V)", [](From r) { return 2 * r["e (C)"] / r["h (J s)"]; }},
    {"R_K (ohm)", [](From r) { return r["h (J s)"] / (r["e (C)"] * r["e (C)"]); }},
    {"R (J/(mol K))", [](From r) { return r["N_A (1/mol)"] * r["k (J/K)"]; }},
    {"F (C/mol)", [](From r) { return r["N_A (1/mol)"] * r["e (C)"]; }},
    {"N_A h (J s/mol)", [](From r) { return r["N_A (1/mol)"] * r["h (J s)"]; }},
    {"k (eV/K)", [](From r) { return r["k (J/K)"] / r["e (C)"]; }},
    {"k/h (Hz/K)", [](From r) { return r["k (J/K)"] / r["h (J s)"]; }},
    {"k/(h c) (1/(m K))", [](From r) { return r["k/h (Hz/K)"] / r["c (m/s)"]; }},
    {"V_m (m^3/mol)", [](From r) { return r["R (J/(mol K))"] * r["T_0 (K)"] / r["p_0 (Pa)"]; }},
    {"V_m_atm (m^3/mol)", [](From r) { return r["R (J/(mol K))"] * r["T_0 (K)"] / r["atm (Pa)"]; }},
    {"n_0 (1/m^3)", [](From r) { return r["N_A (1/mol)"] / r["V_m (m^3/mol)"]; }},
    {"n_0_atm (1/m^3)", [](From r) { return r["N_A (1/mol)"] / r["V_m_atm (m^3/mol)"]; }},
    {"sigma (W/(m^2 K^4))",
     [](From r) {
       return 2 * Power(kPi, 5) * Power(r["k (J/K)"], 4) /
              (15 * Power(r["h (J s)"], 3) * Power(r["c (m/s)"], 2));
     }},
    {"c_1 (W m^2)", [](From r) { return 2 * kPi * r["h (J s)"] * Power(r["c (m/s)"], 2); }},
    {"c_1L (W m^2/sr)", [](From r) { return r["c_1 (W m^2)"] / kPi; }},
    {"c_2 (m K)", [](From r) { return r["h (J s)"] * r["c (m/s)"] / r["k (J/K)"]; }},
    {"b (m K)", [](From r) { return r["c_2 (m K)"] / 4.965114231744276303L; }},
    {"b' (Hz/K)", [](From r) { return 2.821439372122078893L * r["k/h (Hz/K)"]; }},
    {"V_90 (V)", [](From r) { return r["K_J-90 (Hz/V)"] / r["K_J (Hz/V)"]; }},
    {"ohm_90 (ohm)", [](From r) { return r["R_K (ohm)"] / r["R_K-90 (ohm)"]; }},
    {"A_90 (A)", [](From r) { return r["V_90 (V)"] / r["ohm_90 (ohm)"]; }},
    {"C_90 (C)", [](From r) { return r["A_90 (A)"]; }},
    {"W_90 (W)", [](From r) { return r["V_90 (V)"] * r["A_90 (A)"]; }},
    {"F_90 (F)", [](From r) { return 1 / r["ohm_90 (ohm)"]; }},
    {"H_90 (H)", [](From r) { return r["ohm_90 (ohm)"]; }},
    {"eV (J)", [](From r) { return r["e (C)"]; }},
    {"eV (Hz)", [](From r) { return r["e (C)"] / r["h (J s)"]; }},
    {"eV (K)", [](From r) { return r["e (C)"] / r["k (J/K)"]; }},
    {"eV (1/m)", [](From r) { return r["eV (Hz)"] / r["c (m/s)"]; }},
    {"eV (kg)", [](From r) { return r["e (C)"] / Power(r["c (m/s)"], 2); }},
    {"J (eV)", [](From r) { return 1 / r["e (C)"]; }},
    {"kg (J)", [](From r) { return Power(r["c (m/s)"], 2); }},
    {"Hz (K)", [](From r) { return r["h (J s)"] / r["k (J/K)"]; }},
    {"1/m (J)", [](From r) { return r["h (J s)"] * r["c (m/s)"]; }},
    {"1/m (eV)", [](From r) { return r["h (eV s)"] * r["c (m/s)"]; }},
    // universal and electromagnetic:
    {"mu_0 (N/A^2)",
     [](From r) {
       return 2 * r["alpha"] * r["h (J s)"] / (Power(r["e (C)"], 2) * r["c (m/s)"]);
     }},
    {"eps_0 (F/m)", [](From r) { return 1 / (r["mu_0 (N/A^2)"] * Power(r["c (m/s)"], 2)); }},
    {"Z_0 (ohm)", [](From r) { return r["mu_0 (N/A^2)"] * r["c (m/s)"]; }},
    {"G/(hbar c) ((GeV/c^2)^-2)",
     [](From r) {
       return r["G (m^3/(kg s^2))"] / (r["hbar (J s)"] * r["c (m/s)"]) *
              Power(1e9 * r["eV (kg)"], 2);
     }},
    {"m_P (kg)",
     [](From r) {
       return std::sqrt(r["hbar (J s)"] * r["c (m/s)"] / r["G (m^3/(kg s^2))"]);
     }},
    {"m_P c^2 (GeV)", [](From r) { return r["m_P (kg)"] / r["eV (kg)"] / 1e9; }},
    {"T_P (K)", [](From r) { return r["m_P (kg)"] * Power(r["c (m/s)"], 2) / r["k (J/K)"]; }},
    {"l_P (m)", [](From r) { return r["hbar (J s)"] / (r["m_P (kg)"] * r["c (m/s)"]); }},
    {"t_P (s)", [](From r) { return r["l_P (m)"] / r["c (m/s)"]; }},
    {"mu_B (J/T)", [](From r) { return r["e (C)"] * r["hbar (J s)"] / (2 * r["m_e (kg)"]); }},
    {"mu_B (eV/T)", [](From r) { return r["mu_B (J/T)"] / r["e (C)"]; }},
    {"mu_B/h (Hz/T)", [](From r) { return r["mu_B (J/T)"] / r["h (J s)"]; }},
    {"mu_B/(h c) (1/(m T))", [](From r) { return r["mu_B/h (Hz/T)"] / r["c (m/s)"]; }},
    {"mu_B/k (K/T)", [](From r) { return r["mu_B (J/T)"] / r["k (J/K)"]; }},
    {"mu_N (J/T)", [](From r) { return r["e (C)"] * r["hbar (J s)"] / (2 * r["m_p (kg)"]); }},
    {"mu_N (eV/T)", [](From r) { return r["mu_N (J/T)"] / r["e (C)"]; }},
    {"mu_N/h (MHz/T)", [](From r) { return r["mu_N (J/T)"] / r["h (J s)"] / 1e6; }},
    {"mu_N/(h c) (1/(m T))",
     [](From r) {
       return r["mu_N (J/T)"] / (r["h (J s)"] * r["c (m/s)"]);
     }},
    {"mu_N/k (K/T)", [](From r) { return r["mu_N (J/T)"] / r["k (J/K)"]; }},
    // atomic:
    {"alpha",
     [](From r) {
       return Power(r["e (C)"], 2) / (4 * kPi * r["eps_0 (F/m)"] * r["hbar (J s)"] * r["c (m/s)"]);
     }},
    {"1/alpha", [](From r) { return 1 / r["alpha"]; }},
    {"R_inf (1/m)",
     [](From r) {
       return Power(r["alpha"], 2) * r["m_e (kg)"] * r["c (m/s)"] / (2 * r["h (J s)"]);
     }},
    {"R_inf c (Hz)", [](From r) { return r["R_inf (1/m)"] * r["c (m/s)"]; }},
    {"R_inf h c (J)", [](From r) { return r["R_inf c (Hz)"] * r["h (J s)"]; }},
    {"R_inf h c (eV)", [](From r) { return r["R_inf c (Hz)"] * r["h (eV s)"]; }},
    {"a_0 (m)", [](From r) { return r["alpha"] / (4 * kPi * r["R_inf (1/m)"]); }},
    {"a_0 (m)",
     [](From r) {
       return r["hbar (J s)"] / (r["m_e (kg)"] * r["c (m/s)"] * r["alpha"]);
     }},
    {"E_h (J)", [](From r) { return 2 * r["R_inf h c (J)"]; }},
    {"E_h (J)", [](From r) { return Power(r["alpha"], 2) * r["m_e c^2 (J)"]; }},
    {"E_h (eV)", [](From r) { return 2 * r["R_inf h c (eV)"]; }},
    {"h/(2 m_e) (m^2/s)", [](From r) { return r["h (J s)"] / (2 * r["m_e (kg)"]); }},
    {"sin^2(theta_W)", [](From r) { return 1 - Power(r["m_W/m_Z"], 2); }},
    // electron:
    {"m_e (kg)",
     [](From r) {
       return 2 * r["h (J s)"] * r["R_inf (1/m)"] / (r["c (m/s)"] * Power(r["alpha"], 2));
     }},
    {"m_e (u)", [](From r) { return r["m_e (kg)"] / r["m_u (kg)"]; }},
    {"m_e c^2 (J)", [](From r) { return r["m_e (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_e c^2 (MeV)", [](From r) { return r["m_e c^2 (J)"] / r["e (C)"] / 1e6; }},
    {"M_e (kg/mol)", [](From r) { return r["m_e (kg)"] * r["N_A (1/mol)"]; }},
    {"m_e/m_mu", [](From r) { return 1 / r["m_mu/m_e"]; }},
    {"m_e/m_tau", [](From r) { return 1 / r["m_tau/m_e"]; }},
    {"m_e/m_p", [](From r) { return r["m_e (u)"] / r["m_p (u)"]; }},
    {"m_e/m_n", [](From r) { return r["m_e (u)"] / r["m_n (u)"]; }},
    {"m_e/m_d", [](From r) { return r["m_e (u)"] / r["m_d (u)"]; }},
    {"m_e/m_t", [](From r) { return r["m_e (u)"] / r["m_t (u)"]; }},
    {"m_e/m_h", [](From r) { return r["m_e (u)"] / r["m_h (u)"]; }},
    {"m_e/m_alpha", [](From r) { return r["m_e (u)"] / r["m_alpha (u)"]; }},
    {"-e/m_e (C/kg)", [](From r) { return -r["e (C)"] / r["m_e (kg)"]; }},
    {"lambda_C (m)", [](From r) { return r["h (J s)"] / (r["m_e (kg)"] * r["c (m/s)"]); }},
    {"lambdabar_C (m)", [](From r) { return r["lambda_C (m)"] / (2 * kPi); }},
    {"r_e (m)", [](From r) { return Power(r["alpha"], 2) * r["a_0 (m)"]; }},
    {"sigma_e (m^2)", [](From r) { return 8 * kPi / 3 * Power(r["r_e (m)"], 2); }},
    {"mu_e (J/T)", [](From r) { return r["mu_e/mu_B"] * r["mu_B (J/T)"]; }},
    {"mu_e/mu_B", [](From r) { return r["g_e"] / 2; }},
    {"mu_e/mu_N", [](From r) { return r["mu_e/mu_B"] * r["m_p/m_e"]; }},
    {"a_e", [](From r) { return -r["mu_e/mu_B"] - 1; }},
    {"g_e", [](From r) { return -2 * (1 + r["a_e"]); }},
    {"mu_e/mu_mu", [](From r) { return r["mu_e (J/T)"] / r["mu_mu (J/T)"]; }},
    {"mu_e/mu_p", [](From r) { return r["mu_e (J/T)"] / r["mu_p (J/T)"]; }},
    {"mu_e/mu_n", [](From r) { return r["mu_e (J/T)"] / r["mu_n (J/T)"]; }},
    {"mu_e/mu_d", [](From r) { return r["mu_e (J/T)"] / r["mu_d (J/T)"]; }},
    {"gamma_e (1/(s T))", [](From r) { return 2 * -r["mu_e (J/T)"] / r["hbar (J s)"]; }},
    {"gamma_e (MHz/T)", [](From r) { return r["gamma_e (1/(s T))"] / (2 * kPi) / 1e6; }},
    // muon:
    {"m_mu (kg)", [](From r) { return r["m_mu (u)"] * r["m_u (kg)"]; }},
    {"m_mu c^2 (J)", [](From r) { return r["m_mu (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_mu c^2 (MeV)", [](From r) { return r["m_mu (u)"] * r["m_u c^2 (MeV)"]; }},
    {"M_mu (kg/mol)", [](From r) { return r["m_mu (u)"] * r["M_u (kg/mol)"]; }},
    {"m_mu/m_e", [](From r) { return r["m_mu (u)"] / r["m_e (u)"]; }},
    {"m_mu/m_tau", [](From r) { return r["m_mu (u)"] / r["m_tau (u)"]; }},
    {"m_mu/m_p", [](From r) { return r["m_mu (u)"] / r["m_p (u)"]; }},
    {"m_mu/m_n", [](From r) { return r["m_mu (u)"] / r["m_n (u)"]; }},
    {"lambda_C_mu (m)", [](From r) { return r["lambda_C (m)"] / r["m_mu/m_e"]; }},
    {"mu_mu (J/T)", [](From r) { return r["mu_mu/mu_B"] * r["mu_B (J/T)"]; }},
    {"mu_mu/mu_B", [](From r) { return r["mu_mu/mu_N"] * r["m_e/m_p"]; }},
    {"mu_mu/mu_N", [](From r) { return r["mu_mu/mu_p"] * r["mu_p/mu_N"]; }},
    {"a_mu", [](From r) { return -r["g_mu"] / 2 - 1; }},
    {"mu_mu/mu_B", [](From r) { return r["g_mu"] / 2 * r["m_e/m_mu"]; }},
    // tau:
    {"m_tau (kg)", [](From r) { return r["m_tau (u)"] * r["m_u (kg)"]; }},
    {"m_tau (u)", [](From r) { return r["m_tau c^2 (MeV)"] / r["m_u c^2 (MeV)"]; }},
    {"m_tau/m_e", [](From r) { return r["m_tau c^2 (MeV)"] / r["m_e c^2 (MeV)"]; }},
    {"m_tau/m_mu", [](From r) { return r["m_tau c^2 (MeV)"] / r["m_mu c^2 (MeV)"]; }},
    {"m_tau/m_p", [](From r) { return r["m_tau c^2 (MeV)"] / r["m_p c^2 (MeV)"]; }},
    {"lambda_C_tau (m)", [](From r) { return r["lambda_C (m)"] / r["m_tau/m_e"]; }},
    // proton:
    {"m_p (kg)", [](From r) { return r["m_p (u)"] * r["m_u (kg)"]; }},
    {"m_p (u)", [](From r) { return r["m_p/m_e"] * r["m_e (u)"]; }},
    {"m_p c^2 (J)", [](From r) { return r["m_p (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_p c^2 (MeV)", [](From r) { return r["m_p (u)"] * r["m_u c^2 (MeV)"]; }},
    {"M_p (kg/mol)", [](From r) { return r["m_p (u)"] * r["M_u (kg/mol)"]; }},
    {"m_p/m_e", [](From r) { return 1 / r["m_e/m_p"]; }},
    {"m_p/m_mu", [](From r) { return 1 / r["m_mu/m_p"]; }},
    {"m_p/m_tau", [](From r) { return 1 / r["m_tau/m_p"]; }},
    {"m_p/m_n", [](From r) { return r["m_p (u)"] / r["m_n (u)"]; }},
    {"e/m_p (C/kg)", [](From r) { return r["e (C)"] / r["m_p (kg)"]; }},
    {"lambda_C_p (m)", [](From r) { return r["h (J s)"] / (r["m_p (kg)"] * r["c (m/s)"]); }},
    {"mu_p (J/T)", [](From r) { return r["mu_p/mu_N"] * r["mu_N (J/T)"]; }},
    {"mu_p/mu_B", [](From r) { return r["mu_p/mu_N"] / r["m_p/m_e"]; }},
    {"mu_p/mu_B", [](From r) { return r["mu_e/mu_B"] / r["mu_e/mu_p"]; }},
    {"g_p", [](From r) { return 2 * r["mu_p/mu_N"]; }},
    {"mu_p/mu_n", [](From r) { return r["mu_p/mu_N"] / r["mu_n/mu_N"]; }},
    {"mu_p_shielded (J/T)", [](From r) { return r["mu_p (J/T)"] * (1 - r["sigma_p"]); }},
    {"gamma_p (1/(s T))", [](From r) { return 2 * r["mu_p (J/T)"] / r["hbar (J s)"]; }},
    {"gamma_p (MHz/T)", [](From r) { return 2 * r["mu_p (J/T)"] / r["h (J s)"] / 1e6; }},
    // neutron:
    {"m_n (kg)", [](From r) { return r["m_n (u)"] * r["m_u (kg)"]; }},
    {"m_n (u)", [](From r) { return r["m_p (u)"] + r["m_n-m_p (u)"]; }},
    {"m_n c^2 (J)", [](From r) { return r["m_n (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_n c^2 (MeV)", [](From r) { return r["m_n (u)"] * r["m_u c^2 (MeV)"]; }},
    {"M_n (kg/mol)", [](From r) { return r["m_n (u)"] * r["M_u (kg/mol)"]; }},
    {"m_n/m_e", [](From r) { return r["m_n (u)"] / r["m_e (u)"]; }},
    {"m_n/m_mu", [](From r) { return 1 / r["m_mu/m_n"]; }},
    {"m_n/m_p", [](From r) { return 1 / r["m_p/m_n"]; }},
    {"m_n-m_p (kg)", [](From r) { return r["m_n (kg)"] - r["m_p (kg)"]; }},
    {"m_n-m_p (u)", [](From r) { return r["m_n-m_p (kg)"] / r["m_u (kg)"]; }},
    {"(m_n-m_p) c^2 (MeV)", [](From r) { return r["m_n-m_p (u)"] * r["m_u c^2 (MeV)"]; }},
    {"lambda_C_n (m)", [](From r) { return r["h (J s)"] / (r["m_n (kg)"] * r["c (m/s)"]); }},
    {"mu_n (J/T)", [](From r) { return r["mu_n/mu_N"] * r["mu_N (J/T)"]; }},
    {"mu_n/mu_B", [](From r) { return r["mu_n/mu_N"] * r["m_e/m_p"]; }},
    {"g_n", [](From r) { return 2 * r["mu_n/mu_N"]; }},
    {"mu_n/mu_p", [](From r) { return r["mu_n/mu_N"] / r["mu_p/mu_N"]; }},
    {"gamma_n (1/(s T))", [](From r) { return 2 * -r["mu_n (J/T)"] / r["hbar (J s)"]; }},
    {"gamma_n (MHz/T)", [](From r) { return r["gamma_n (1/(s T))"] / (2 * kPi) / 1e6; }},
    // deuteron:
    {"m_d (kg)", [](From r) { return r["m_d (u)"] * r["m_u (kg)"]; }},
    {"m_d c^2 (J)", [](From r) { return r["m_d (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_d c^2 (MeV)", [](From r) { return r["m_d (u)"] * r["m_u c^2 (MeV)"]; }},
    {"m_d/m_e", [](From r) { return r["m_d (u)"] / r["m_e (u)"]; }},
    {"m_d/m_p", [](From r) { return r["m_d (u)"] / r["m_p (u)"]; }},
    {"mu_d (J/T)", [](From r) { return r["mu_d/mu_N"] * r["mu_N (J/T)"]; }},
    {"mu_d/mu_B", [](From r) { return r["mu_d/mu_N"] * r["m_e/m_p"]; }},
    {"g_d", [](From r) { return r["mu_d/mu_N"]; }},
    {"mu_d/mu_p", [](From r) { return r["mu_d/mu_N"] / r["mu_p/mu_N"]; }},
    // triton:
    {"m_t (kg)", [](From r) { return r["m_t (u)"] * r["m_u (kg)"]; }},
    {"m_t c^2 (J)", [](From r) { return r["m_t (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_t c^2 (MeV)", [](From r) { return r["m_t (u)"] * r["m_u c^2 (MeV)"]; }},
    {"m_t/m_e", [](From r) { return r["m_t (u)"] / r["m_e (u)"]; }},
    {"m_t/m_p", [](From r) { return r["m_t (u)"] / r["m_p (u)"]; }},
    {"mu_t (J/T)", [](From r) { return r["mu_t/mu_N"] * r["mu_N (J/T)"]; }},
    {"mu_t/mu_B", [](From r) { return r["mu_t/mu_N"] * r["m_e/m_p"]; }},
    {"g_t", [](From r) { return 2 * r["mu_t/mu_N"]; }},
    // helion:
    {"m_h (kg)", [](From r) { return r["m_h (u)"] * r["m_u (kg)"]; }},
    {"m_h c^2 (J)", [](From r) { return r["m_h (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_h c^2 (MeV)", [](From r) { return r["m_h (u)"] * r["m_u c^2 (MeV)"]; }},
    {"m_h/m_e", [](From r) { return r["m_h (u)"] / r["m_e (u)"]; }},
    {"m_h/m_p", [](From r) { return r["m_h (u)"] / r["m_p (u)"]; }},
    {"mu_h (J/T)", [](From r) { return r["mu_h/mu_N"] * r["mu_N (J/T)"]; }},
    {"mu_h/mu_B", [](From r) { return r["mu_h/mu_N"] * r["m_e/m_p"]; }},
    {"g_h", [](From r) { return 2 * r["mu_h/mu_N"]; }},
    // alpha particle:
    {"m_alpha (kg)", [](From r) { return r["m_alpha (u)"] * r["m_u (kg)"]; }},
    {"m_alpha c^2 (J)", [](From r) { return r["m_alpha (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_alpha c^2 (MeV)", [](From r) { return r["m_alpha (u)"] * r["m_u c^2 (MeV)"]; }},
    {"m_alpha/m_e", [](From r) { return r["m_alpha (u)"] / r["m_e (u)"]; }},
    {"m_alpha/m_p", [](From r) { return r["m_alpha (u)"] / r["m_p (u)"]; }},
    // physico-chemical:
    {"m_u (kg)", [](From r) { return r["M_u (kg/mol)"] / r["N_A (1/mol)"]; }},
    {"m_u (kg)", [](From r) { return r["m_e (kg)"] / r["m_e (u)"]; }},
    {"m_u c^2 (J)", [](From r) { return r["m_u (kg)"] * Power(r["c (m/s)"], 2); }},
    {"m_u c^2 (MeV)", [](From r) { return r["m_u c^2 (J)"] / r["e (C)"] / 1e6; }},
    {"M(12C) (kg/mol)", [](From r) { return 12 * r["M_u (kg/mol)"]; }},
    {"S_0/R",
     [](From r) {
       const Real kT = r["k (J/K)"];  // at 1 K
       const Real waves = 2 * kPi * r["m_u (kg)"] * kT / Power(r["h (J s)"], 2);
       return 2.5L + std::log(Power(waves, 1.5L) * kT / r["p_0 (Pa)"]);
     }},
    {"S_0_atm/R", [](From r) { return r["S_0/R"] - std::log(r["atm (Pa)"] / r["p_0 (Pa)"]); }},
    // silicon:
    {"d_220 (m)", [](From r) { return r["a_Si (m)"] / std::sqrt(8.0L); }},
    {"V_m_Si (m^3/mol)", [](From r) { return r["N_A (1/mol)"] * Power(r["a_Si (m)"], 3) / 8; }},
    // energy equivalents:
    {"eV (u)", [](From r) { return 1e-6 / r["m_u c^2 (MeV)"]; }},
    {"E_h (Hz)", [](From r) { return 2 * r["R_inf c (Hz)"]; }},
    {"E_h (K)", [](From r) { return r["E_h (J)"] / r["k (J/K)"]; }},
    {"E_h (1/m)", [](From r) { return 2 * r["R_inf (1/m)"]; }},
    {"E_h (kg)", [](From r) { return r["E_h (J)"] / Power(r["c (m/s)"], 2); }},
    {"E_h (u)", [](From r) { return Power(r["alpha"], 2) * r["m_e (u)"]; }},
    // atomic units:
    {"hbar/E_h (s)", [](From r) { return r["hbar (J s)"] / r["E_h (J)"]; }},
    {"a_0 E_h/hbar (m/s)", [](From r) { return r["alpha"] * r["c (m/s)"]; }},
    {"hbar/a_0 (kg m/s)", [](From r) { return r["hbar (J s)"] / r["a_0 (m)"]; }},
    {"E_h/a_0 (N)", [](From r) { return r["E_h (J)"] / r["a_0 (m)"]; }},
    {"e E_h/hbar (A)", [](From r) { return r["e (C)"] * r["E_h (J)"] / r["hbar (J s)"]; }},
    {"E_h/(e a_0) (V/m)", [](From r) { return r["E_h (eV)"] / r["a_0 (m)"]; }},
    {"e a_0 (C m)", [](From r) { return r["e (C)"] * r["a_0 (m)"]; }},
    {"hbar/(e a_0^2) (T)",
     [](From r) {
       return r["hbar (J s)"] / (r["e (C)"] * Power(r["a_0 (m)"], 2));
     }},
    {"e/a_0^3 (C/m^3)", [](From r) { return r["e (C)"] / Power(r["a_0 (m)"], 3); }},
    {"e^2 a_0^2/E_h (C^2 m^2/J)",
     [](From r) {
       return Power(r["e (C)"] * r["a_0 (m)"], 2) / r["E_h (J)"];
     }},
    {"e^2 a_0^2/m_e (J/T^2)",
     [](From r) {
       return Power(r["e (C)"] * r["a_0 (m)"], 2) / r["m_e (kg)"];
     }},
};

/// Numbers that follow from no others, as they are published.
inline const std::pair<std::string_view, std::string_view> kPublished[] = {
    {"Delta_nu_Cs (Hz)", "9192631770"},
    {"c (m/s)", "299792458"},
    {"h (J s)", "6.62607015e-34"},
    {"e (C)", "1.602176634e-19"},
    {"k (J/K)", "1.380649e-23"},
    {"N_A (1/mol)", "6.02214076e23"},
    {"K_cd (lm/W)", "683"},
    {"g_n (m/s^2)", "9.80665"},
    {"atm (Pa)", "101325"},
    {"p_0 (Pa)", "100000"},
    {"T_0 (K)", "273.15"},
    {"K_J-90 (Hz/V)", "4.835979e14"},
    {"R_K-90 (ohm)", "25812.807"},
    {"G (m^3/(kg s^2))", "6.67430e-11"},
    {"G_F (1/GeV^2)", "1.1663787e-5"},
    {"r_p (m)", "8.4075e-16"},
    {"r_d (m)", "2.12778e-15"},
    {"r_alpha (m)", "1.6785e-15"},
    {"xu_Cu (m)", "1.00207697e-13"},
    {"xu_Mo (m)", "1.00209952e-13"},
    {"A* (m)", "1.00001495e-10"},
};

}  // namespace kav::test
