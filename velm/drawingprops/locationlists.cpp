#include "velm/drawingprops/locationlists.h"

#include "velm/bridge/strings.h"

#include <algorithm>
#include <iterator>

namespace velm {
namespace {
struct TimeZoneRow
{
    OdDb::TimeZone zone;
    const char* text;
};

constexpr TimeZoneRow timeZoneRows[] = {
    {OdDb::kInternationalDateLineWest, "(GMT-12:00) International Date Line West"},
    {OdDb::kMidwayIsland_Samoa, "(GMT-11:00) Midway Island, Samoa"},
    {OdDb::kHawaii, "(GMT-10:00) Hawaii"},
    {OdDb::kAlaska, "(GMT-09:00) Alaska"},
    {OdDb::kPacificTimeUSCanada_Tijuana, "(GMT-08:00) Pacific Time (US & Canada); Tijuana"},
    {OdDb::kMountainTimeUSCanada, "(GMT-07:00) Mountain Time (US & Canada)"},
    {OdDb::kArizona, "(GMT-07:00) Arizona"},
    {OdDb::kChihuahua_LaPaz_Mazatlan, "(GMT-07:00) Chihuahua, La Paz, Mazatlan"},
    // This must stay: the doubled bracket is a part of the key that catalogues translate.
    {OdDb::kCentralTimeUSCanada, "(GMT-06:00) Central Time (US & Canada))"},
    {OdDb::kCentralAmerica, "(GMT-06:00) Central America"},
    {OdDb::kGuadalajara_MexicoCity_Monterrey, "(GMT-06:00) Guadalajara, Mexico City, Monterrey"},
    {OdDb::kSaskatchewan, "(GMT-06:00) Saskatchewan"},
    {OdDb::kEasternTimeUSCanada, "(GMT-05:00) Eastern Time (US & Canada)"},
    {OdDb::kIndianaEast, "(GMT-05:00) Indiana (East)"},
    {OdDb::kBogota_Lima_Quito, "(GMT-05:00) Bogota, Lima, Quito"},
    {OdDb::kAtlanticTimeCanada, "(GMT-04:00) Atlantic Time (Canada)"},
    {OdDb::kCaracas_LaPaz, "(GMT-04:00) Caracas, La Paz"},
    {OdDb::kSantiago, "(GMT-04:00) Santiago"},
    {OdDb::kNewfoundland, "(GMT-03:30) Newfoundland"},
    {OdDb::kBrasilia, "(GMT-03:00) Brasilia"},
    {OdDb::kBuenosAires_Georgetown, "(GMT-03:00) Buenos Aires, Georgetown"},
    {OdDb::kGreenland, "(GMT-03:00) Greenland"},
    {OdDb::kMidAtlantic, "(GMT-02:00) Mid-Atlantic"},
    {OdDb::kAzores, "(GMT-01:00) Azores"},
    {OdDb::kCapeVerdeIs, "(GMT-01:00) Cape Verde Is."},
    {OdDb::kUniversalCoordinatedTime, "(UTC) Universal Coordinated Time"},
    {OdDb::kGreenwichMeanTime_Dublin_Edinburgh_Lisbon_London,
     "(GMT) Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London"},
    {OdDb::kCasablanca_Monrovia, "(GMT) Casablanca, Monrovia"},
    {OdDb::kAmsterdam_Berlin_Bern_Rome_Stockholm_Vienna,
     "(GMT+01:00) Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna"},
    {OdDb::kBrussels_Copenhagen_Madrid_Paris, "(GMT+01:00) Brussels, Copenhagen, Madrid, Paris"},
    {OdDb::kBelgrade_Bratislava_Budapest_Ljubljana_Prague,
     "(GMT+01:00) Belgrade, Bratislava, Budapest, Ljubljana, Prague"},
    {OdDb::kSarajevo_Skopje_Warsaw_Zagreb, "(GMT+01:00) Sarajevo, Skopje, Warsaw, Zagreb"},
    {OdDb::kWestCentralAfrica, "(GMT+01:00) West Central Africa"},
    {OdDb::kAthens_Beirut_Istanbul_Minsk, "(GMT+02:00) Athens, Beirut, Istanbul, Minsk"},
    {OdDb::kBucharest, "(GMT+02:00) Bucharest"},
    {OdDb::kCairo, "(GMT+02:00) Cairo"},
    {OdDb::kHarare_Pretoria, "(GMT+02:00) Harare, Pretoria"},
    {OdDb::kHelsinki_Kyiv_Riga_Sofia_Tallinn_Vilnius, "(GMT+02:00) Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius"},
    {OdDb::kJerusalem, "(GMT+02:00) Jerusalem"},
    {OdDb::kMoscow_StPetersburg_Volgograd, "(GMT+03:00) Moscow, St. Petersburg, Volgograd"},
    {OdDb::kKuwait_Riyadh, "(GMT+03:00) Kuwait, Riyadh"},
    {OdDb::kBaghdad, "(GMT+03:00) Baghdad"},
    {OdDb::kNairobi, "(GMT+03:00) Nairobi"},
    {OdDb::kTehran, "(GMT+03:30) Tehran"},
    {OdDb::kAbuDhabi_Muscat, "(GMT+04:00) Abu Dhabi, Muscat"},
    {OdDb::kBaku_Tbilisi_Yerevan, "(GMT+04:00) Baku, Tbilisi, Yerevan"},
    {OdDb::kKabul, "(GMT+04:30) Kabul"},
    {OdDb::kEkaterinburg, "(GMT+05:00) Ekaterinburg"},
    {OdDb::kIslamabad_Karachi_Tashkent, "(GMT+05:00) Islamabad, Karachi, Tashkent"},
    {OdDb::kChennai_Kolkata_Mumbai_NewDelhi, "(GMT+05:30) Chennai, Kolkata, Mumbai, New Delhi"},
    {OdDb::kKathmandu, "(GMT+05:45) Kathmandu"},
    {OdDb::kAlmaty_Novosibirsk, "(GMT+06:00) Almaty, Novosibirsk"},
    {OdDb::kAstana_Dhaka, "(GMT+06:00) Astana, Dhaka"},
    {OdDb::kSriJayawardenepura, "(GMT+06:00) Sri Jayawardenepura"},
    {OdDb::kRangoon, "(GMT+06:30) Rangoon"},
    {OdDb::kBangkok_Hanoi_Jakarta, "(GMT+07:00) Bangkok, Hanoi, Jakarta"},
    {OdDb::kKrasnoyarsk, "(GMT+07:00) Krasnoyarsk"},
    {OdDb::kBeijing_Chongqing_HongKong_Urumqi, "(GMT+08:00) Beijing, Chongqing, Hong Kong, Urumqi"},
    {OdDb::kKualaLumpur_Singapore, "(GMT+08:00) Kuala Lumpur, Singapore"},
    {OdDb::kTaipei, "(GMT+08:00) Taipei"},
    {OdDb::kIrkutsk_UlaanBataar, "(GMT+08:00) Irkutsk, Ulaan Bataar"},
    {OdDb::kPerth, "(GMT+08:00) Perth"},
    {OdDb::kOsaka_Sapporo_Tokyo, "(GMT+09:00) Osaka, Sapporo, Tokyo"},
    {OdDb::kSeoul, "(GMT+09:00) Seoul"},
    {OdDb::kYakutsk, "(GMT+09:00) Yakutsk"},
    {OdDb::kAdelaide, "(GMT+09:30) Adelaide"},
    {OdDb::kDarwin, "(GMT+09:30) Darwin"},
    {OdDb::kCanberra_Melbourne_Sydney, "(GMT+10:00) Canberra, Melbourne, Sydney"},
    {OdDb::kGuam_PortMoresby, "(GMT+10:00) Guam, Port Moresby"},
    {OdDb::kBrisbane, "(GMT+10:00) Brisbane"},
    {OdDb::kHobart, "(GMT+10:00) Hobart"},
    {OdDb::kVladivostok, "(GMT+10:00) Vladivostok"},
    {OdDb::kMagadan_SolomonIs_NewCaledonia, "(GMT+11:00) Magadan, Solomon Is., New Caledonia"},
    {OdDb::kAuckland_Wellington, "(GMT+12:00) Auckland, Wellington"},
    {OdDb::kFiji_Kamchatka_MarshallIs, "(GMT+12:00) Fiji, Kamchatka, Marshall Is."},
    {OdDb::kNukualofa, "(GMT+13:00) Nuku'alofa"},
};
constexpr int timeZoneCount = std::size(timeZoneRows);
constexpr int pacificRow = 4;
} // namespace

const wxArrayString& timeZoneStrings()
{
    static const wxArrayString strings = [] {
        wxArrayString result;
        for (const TimeZoneRow& row : timeZoneRows)
            result.Add(hostTranslation(row.text));
        return result;
    }();
    return strings;
}

OdDb::TimeZone timeZone(int index)
{
    return timeZoneRows[index >= 0 && index < timeZoneCount ? index : pacificRow].zone;
}

int timeZone(OdDb::TimeZone zone)
{
    const auto* row = std::find_if(std::begin(timeZoneRows), std::end(timeZoneRows),
                                   [zone](const TimeZoneRow& candidate) { return candidate.zone == zone; });
    return row == std::end(timeZoneRows) ? pacificRow : static_cast<int>(row - timeZoneRows);
}

const wxArrayString& angleFormatStrings()
{
    static const wxArrayString strings = [] {
        wxArrayString result;
        result.Add(hostTranslation("Decimal degrees (DD) Latitude / Longitude"));
        result.Add(hostTranslation("Degrees Minutes Seconds (DMS) Latitude / Longitude"));
        return result;
    }();
    return strings;
}
} // namespace velm
