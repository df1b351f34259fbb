// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/region.h>
#include <sivane/fields/field_list.h>

namespace sivane {

RECORD_FIELDS(DescriptorTargetRegion::Region) {
  f.add(FIELD(country_code_flag));
  f.add(FIELD(region_depth), 2);
  f.add(FIELD(country_code));
  f.add(FIELD(primary_region_code), 8);
  f.add(FIELD(secondary_region_code), 8);
  f.add(FIELD(tertiary_region_code), 16);
}

void DescriptorTargetRegion::_fields(FieldList& f) {
  f.add(FIELD(country_code));
  f.list(FIELD(regions), u"region");
}

RECORD_FIELDS(DescriptorTargetRegionName::Region) {
  f.add(FIELD(region_depth), 2);
  f.text(FIELD(region_name));
  f.add(FIELD(primary_region_code), 8);
  f.add(FIELD(secondary_region_code), 8);
  f.add(FIELD(tertiary_region_code), 16);
}

void DescriptorTargetRegionName::_fields(FieldList& f) {
  f.add(FIELD(country_code));
  f.add(FIELD(ISO_639_language_code));
  f.list(FIELD(regions), u"region");
}

RECORD_FIELDS(DescriptorNetworkChangeNotify::Change) {
  f.add(FIELD(network_change_id), 8);
  f.add(FIELD(network_change_version), 8);
  f.add(FIELD(start_time_of_change));
  f.add(FIELD(change_duration));
  f.add(FIELD(receiver_category), 3);
  f.add(FIELD(invariant_ts_present));
  f.add(FIELD(change_type), 4);
  f.add(FIELD(message_id), 8);
  f.add(FIELD(invariant_ts_tsid), 16);
  f.add(FIELD(invariant_ts_onid), 16);
}

RECORD_FIELDS(DescriptorNetworkChangeNotify::Cell) {
  f.add(FIELD(cell_id), 16);
  f.list(FIELD(changes), u"change");
}

void DescriptorNetworkChangeNotify::_fields(FieldList& f) { f.list(FIELD(cells), u"cell"); }

}  // namespace sivane
