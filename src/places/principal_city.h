// Where the computer is, as far as its time zone tells.
#pragma once

#include <optional>
#include <string>

namespace gloamtide {

// The computer's time zone, such as "Europe/Berlin": what TZ names, else what /etc/localtime leads to, else what
// /etc/timezone says; empty where none of them names one.
//   Root: the folder that these paths are looked for in
std::string ComputerZone(const char* TZ, const std::string& Root = "");

struct PrincipalCity {
    std::string Name;  // as in the zone's name: "Berlin", "New York"
    double Latitude;   // degrees, north positive
    double Longitude;  // degrees, east positive
};

// The city that the tables of the time zone database name for a zone, or for the one that its name now stands for; none
// where they lack it, or where there are no tables.
//   Source: zone1970.tab and zone.tab of the IANA time zone database, as installed in /usr/share/zoneinfo
std::optional<PrincipalCity> FindPrincipalCity(const std::string& Zone, const std::string& Root = "");

}  // namespace gloamtide
