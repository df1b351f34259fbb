'use strict';
// Shows the data of the page. They come from a broadcast: they become text nodes and never markup.
const data = JSON.parse(document.getElementById('data').textContent);
const colours = ['#3b7dd8', '#e08a2e', '#3fa36c', '#b660c4', '#d2554c', '#3aa5b5', '#8a8f3a', '#c2608f', '#8893a3'];
const minute = 60, hour = 3600, day = 86400, pixelsOfMinute = 4, shownAtOnce = 200;

function make(tag, attributes, ...children) {
  const node = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes || {})) {
    if (value !== null && value !== undefined) node.setAttribute(name, value);
  }
  for (const child of children) if (child !== null) node.append(child);
  return node;
}
function draw(tag, attributes, ...children) {
  const node = document.createElementNS('http://www.w3.org/2000/svg', tag);
  for (const [name, value] of Object.entries(attributes)) node.setAttribute(name, value);
  node.append(...children);
  return node;
}
const bodyOf = id => document.querySelector('#' + id + ' > div');
const grouped = number => number.toLocaleString('en');
const hex = (number, digits) => '0x' + number.toString(16).padStart(digits, '0');
const two = number => String(number).padStart(2, '0');
// A time as the broadcast means it: UTC, whatever the reader's clock is set to.
const dateOf = seconds => new Date(seconds * 1000).toISOString();
const clockOf = seconds => dateOf(seconds).slice(11, 16);
const spanOf = seconds => Math.floor(seconds / hour) + ':' + two(Math.floor(seconds / minute) % 60) + ':' + two(Math.floor(seconds % 60));
const isolated = text => make('bdi', null, text);

function table(titles, rows, numeric) {
  const classOf = i => (numeric || []).includes(i) ? 'number' : null;
  const head = make('tr', null, ...titles.map((title, i) => make('th', {class: classOf(i), scope: 'col'}, title)));
  const body = make('tbody');
  for (const row of rows) body.append(make('tr', null, ...row.map((cell, i) => make('td', {class: classOf(i)}, cell))));
  return make('div', {class: 'scroll', tabindex: '0', role: 'region', 'aria-label': titles.join(', ')}, make('table', null, make('thead', null, head), body));
}
// Long lists come in parts, so that the page opens at once.
function inParts(parent, items, show) {
  let done = 0;
  const more = make('button', {type: 'button'});
  const next = () => {
    for (const item of items.slice(done, done + shownAtOnce)) parent.insertBefore(show(item), more);
    done = Math.min(done + shownAtOnce, items.length);
    more.textContent = 'Show more (' + grouped(items.length - done) + ')';
    more.hidden = done >= items.length;
  };
  more.addEventListener('click', next);
  parent.append(more);
  next();
}

// Overview

const keyOf = entry => entry.network + '/' + entry.stream + '/' + entry.service;
const services = new Map(data.services.map(service => [keyOf(service), service]));

function showOverview() {
  const found = data.check.measures.filter(measure => measure.count > 0);
  const grave = found.filter(measure => measure.priority === 1 || measure.priority === 2);
  const seconds = data.check.seconds;
  const facts = [
    [seconds === null ? '–' : spanOf(seconds), seconds === null ? 'no clock (PCR)' : 'by the stream’s clock'],
    [grouped(data.packets), 'packets'],
    [seconds ? (data.packets * 188 * 8 / seconds / 1e6).toFixed(2) + ' Mbit/s' : '–', 'mean bit rate'],
    [grouped(data.services.length), 'services described'], [grouped(data.programs.length), 'programs'],
    [grouped(data.events.length), 'events'], [grouped(grave.length), 'violations of priority 1 and 2'],
  ];
  const body = bodyOf('overview');
  body.append(make('div', {class: 'facts'}, ...facts.map(([value, name]) => make('div', {class: 'fact'}, make('b', null, value), make('span', null, name)))));
  if (data.networks.length) {
    body.append(make('h3', null, 'Networks'), table(['Id', 'Name', 'Registered'], data.networks.map(network => [String(network.id), isolated(network.name), network.registered])));
  }
  if (data.services.length) {
    body.append(make('h3', null, 'Services'), table(['Service', 'Name', 'Provider', 'Type', 'Access', 'Stream'], data.services.map(service =>
      [String(service.service), isolated(service.name), isolated(service.provider), service.type, service.scrambled ? 'scrambled' : 'free', service.network + ' / ' + service.stream + (service.actual ? ' (this one)' : '')])));
  }
  if (data.programs.length) {
    const streams = program => program.streams.map(stream => hex(stream.pid, 4) + ' ' + stream.type + (stream.supplementary ? ', ' + stream.supplementary : '') + (stream.languages ? ' (' + stream.languages + ')' : '')).join(', ');
    body.append(make('h3', null, 'Programs'), table(['Program', 'PMT', 'PCR', 'Streams'], data.programs.map(program =>
      [String(program.number), program.map < 0 ? '–' : hex(program.map, 4), program.pcr === 0x1fff ? '–' : hex(program.pcr, 4), streams(program)])));
  }
}

// Programme guide

const nameOf = entry => { const service = services.get(keyOf(entry)); return service && service.name ? service.name : 'Service ' + entry.service; };

function aboutEvent(event) {
  const about = make('div', null, make('h3', null, isolated(event.title || '(no title)')),
    make('p', {class: 'note'}, isolated(nameOf(event)), ' · ' + dateOf(event.start).slice(0, 10) + ' ' + clockOf(event.start) + '–' + clockOf(event.start + event.duration) + ' UTC · event ' + event.id));
  for (const text of event.texts) {
    about.append(make('p', {dir: 'auto'}, (event.texts.length > 1 ? text.language + ': ' + text.title + '\n' : '') + text.text));
  }
  for (const facts of [event.genres, event.components, event.content_ids]) {
    if (facts) about.append(make('p', {class: 'note'}, isolated(facts)));
  }
  return about;
}
function eventButton(event, from, about) {
  const left = Math.max(event.start, from), right = Math.min(event.start + event.duration, from + day);
  const button = make('button', {type: 'button', class: 'event', title: event.title, 'aria-pressed': 'false'}, isolated(event.title || '(no title)'), make('small', null, clockOf(event.start) + '–' + clockOf(event.start + event.duration)));
  button.style.left = (left - from) / minute * pixelsOfMinute + 'px';
  button.style.width = Math.max(1, (right - left) / minute * pixelsOfMinute - 2) + 'px';
  button.addEventListener('click', () => {
    for (const other of document.querySelectorAll('.event[aria-pressed=true]')) other.setAttribute('aria-pressed', 'false');
    button.setAttribute('aria-pressed', 'true');
    about.replaceChildren(aboutEvent(event));
    about.hidden = false;
  });
  return button;
}
function track(children) {
  const node = make('div', {class: 'track'}, ...children);
  node.style.width = day / minute * pixelsOfMinute + 'px';
  return node;
}
function showDay(grid, about, from) {
  const rows = new Map();
  for (const event of data.events) {
    if (event.start + event.duration <= from || event.start >= from + day) continue;
    const key = keyOf(event);
    if (!rows.has(key)) rows.set(key, []);
    rows.get(key).push(event);
  }
  const hours = [...Array(24).keys()].map(i => { const mark = make('span', {class: 'hour'}, two(i) + ':00'); mark.style.left = i * 60 * pixelsOfMinute + 'px'; return mark; });
  grid.replaceChildren(make('div', {class: 'hours'}, make('div', {class: 'who note'}, 'UTC'), track(hours)));
  let first = from + day;
  for (const events of rows.values()) {
    events.sort((one, other) => one.start - other.start);
    first = Math.min(first, Math.max(events[0].start, from));
    grid.append(make('div', {class: 'row'}, make('div', {class: 'who'}, isolated(nameOf(events[0])), make('small', null, 'service ' + events[0].service)), track(events.map(event => eventButton(event, from, about)))));
  }
  grid.scrollLeft = (first - from) / minute * pixelsOfMinute - 20;
}
function showGuide() {
  const body = bodyOf('guide');
  if (!data.events.length) { body.append(make('p', {class: 'note'}, 'No event is announced.')); return; }
  const counts = new Map();
  for (const event of data.events) { const start = event.start - event.start % day; counts.set(start, (counts.get(start) || 0) + 1); }
  const days = [...counts.keys()].sort((one, other) => one - other);
  const choice = make('select', {id: 'day'}, ...days.map(start => make('option', {value: start}, dateOf(start).slice(0, 10) + ' (' + counts.get(start) + ')')));
  const grid = make('div', {class: 'grid', tabindex: '0', role: 'region', 'aria-label': 'Programme guide'}), about = make('div', {class: 'about', 'aria-live': 'polite'});
  about.hidden = true;
  const busiest = days.reduce((best, start) => counts.get(start) > counts.get(best) ? start : best, days[0]);
  choice.value = busiest;
  choice.addEventListener('change', () => showDay(grid, about, Number(choice.value)));
  body.append(make('div', {class: 'days'}, make('label', {for: 'day'}, 'Day'), choice, make('span', {class: 'note'}, 'times in UTC')), grid, about);
  if (data.events_left_out) body.append(make('p', {class: 'note'}, grouped(data.events_left_out) + ' events without a time, or beyond the page’s limit, are not shown.'));
  showDay(grid, about, busiest);
}

// PIDs

// The rate of a PID in each part: in kbit/s where the stream has a clock, else its share in per cent.
function ratesOf(pid, totals) {
  return pid.course.map((packets, i) => {
    const end = data.part_ends[i], begin = i ? data.part_ends[i - 1] : 0;
    if (data.check.seconds === null) return totals[i] ? 100 * packets / totals[i] : 0;
    return end > begin ? packets * 188 * 8 / (end - begin) / 1000 : 0;
  });
}
function sparkline(rates) {
  const highest = Math.max(...rates, 1e-9), count = rates.length;
  let line = 'M0 100';
  rates.forEach((rate, i) => { line += 'L' + i + ' ' + (100 - 95 * rate / highest) + 'L' + (i + 1) + ' ' + (100 - 95 * rate / highest); });
  return draw('svg', {class: 'spark', viewBox: '0 0 ' + count + ' 100', preserveAspectRatio: 'none', 'aria-hidden': 'true'}, draw('path', {d: line + 'L' + count + ' 100Z'}));
}
function stackedChart(courses) {
  const count = courses[0].rates.length, sums = courses[0].rates.map((_, i) => courses.reduce((sum, course) => sum + course.rates[i], 0));
  const highest = Math.max(...sums, 1e-9), base = new Array(count).fill(0);
  const svg = draw('svg', {class: 'chart', viewBox: '0 0 ' + count + ' 100', preserveAspectRatio: 'none', role: 'img', 'aria-label': 'Course of the rates of PIDs'});
  courses.forEach((course, k) => {
    let upper = '', lower = '';
    for (let i = 0; i < count; ++i) {
      const below = 100 - 100 * base[i] / highest, above = 100 - 100 * (base[i] + course.rates[i]) / highest;
      upper += (i ? 'L' : 'M') + i + ' ' + above + 'L' + (i + 1) + ' ' + above;
      lower = 'L' + (i + 1) + ' ' + below + 'L' + i + ' ' + below + lower;
      base[i] += course.rates[i];
    }
    svg.append(draw('path', {d: upper + lower + 'Z', fill: colours[k]}, draw('title', {}, course.name)));
  });
  return {svg, highest};
}
// The last part is what is left, and may be too short to tell a rate.
function dropShortEnd() {
  const size = i => data.pids.reduce((sum, pid) => sum + pid.course[i], 0), last = data.part_ends.length - 1;
  if (last < 1 || 2 * size(last) >= size(last - 1)) return;
  data.part_ends.pop();
  for (const pid of data.pids) pid.course.pop();
}
function showPids() {
  const body = bodyOf('pids');
  if (!data.pids.length) return;
  dropShortEnd();
  const totals = data.pids[0].course.map((_, i) => data.pids.reduce((sum, pid) => sum + pid.course[i], 0));
  const byShare = [...data.pids].sort((one, other) => other.packets - one.packets);
  const rated = byShare.map(pid => ({pid, name: hex(pid.pid, 4) + ' ' + pid.content, rates: ratesOf(pid, totals)}));
  const top = rated.slice(0, colours.length - 1);
  const rest = rated.slice(colours.length - 1);
  if (rest.length) top.push({name: rest.length + ' others', rates: totals.map((_, i) => rest.reduce((sum, one) => sum + one.rates[i], 0))});
  const {svg, highest} = stackedChart(top);
  const clocked = data.check.seconds !== null;
  const axis = make('div', {class: 'axis'}, make('span', null, clocked ? '0:00:00' : 'first packet'), make('span', null, clocked ? 'highest ' + (highest / 1000).toFixed(2) + ' Mbit/s' : 'share of the packets'), make('span', null, clocked ? spanOf(data.check.seconds) : 'last packet'));
  const legend = make('div', {class: 'legend'}, ...top.map((one, k) => { const dot = make('i'); dot.style.background = colours[k]; return make('span', null, dot, one.name); }));
  const shareBar = share => { const bar = make('i'); bar.style.width = share + '%'; return make('span', {class: 'share', 'aria-hidden': 'true'}, bar); };
  body.append(svg, axis, legend, table(['PID', 'Content', 'Packets', 'Share', '', 'Course'], rated.map(one => {
    const share = 100 * one.pid.packets / data.packets;
    return [make('code', null, hex(one.pid.pid, 4)), one.pid.content, grouped(one.pid.packets), share.toFixed(2) + ' %', shareBar(share), sparkline(one.rates)];
  }), [2, 3]));
}

// Repetition and check

const milliseconds = number => number === undefined ? '–' : number >= 10000 ? (number / 1000).toFixed(1) + ' s' : grouped(number) + ' ms';
const badge = (text, kind) => make('span', {class: 'badge ' + kind}, text);

function repetitionRow(row) {
  const isTooLong = row.longest > row.limit;
  const verdict = row.longest === undefined ? badge('not measured', '') : isTooLong ? badge('too long', 'bad') : row.count ? badge('ok', 'good') : badge('none, and none due', '');
  return [row.table, grouped(row.count), milliseconds(row.mean), milliseconds(row.longest), milliseconds(row.limit), verdict];
}
function showRepetition() {
  const body = bodyOf('repetition');
  if (data.check.seconds === null) body.append(make('p', {class: 'note'}, 'The stream has no clock (PCR): how often tables come is counted, and not how long they take.'));
  const worst = [...data.repetitions].sort((one, other) => (other.longest || 0) / other.limit - (one.longest || 0) / one.limit);
  const shown = worst.slice(0, 2 * shownAtOnce);
  body.append(table(['Table', 'Count', 'Mean', 'Longest', 'Limit', ''], shown.map(repetitionRow), [1, 2, 3, 4]));
  if (shown.length < worst.length) body.append(make('p', {class: 'note'}, grouped(worst.length - shown.length) + ' more, which come closer together, are not shown.'));
}
const placeOf = place => (place.time === null ? '' : spanOf(place.time) + ', ') + 'packet ' + grouped(place.packet) + ', offset ' + grouped(place.offset) + (place.detail ? ': ' + place.detail : '');

function measureDetails(measure) {
  const subjects = make('div', {class: 'fields'});
  for (const subject of measure.subjects) {
    subjects.append(make('div', {class: 'field'}, make('span', null, subject.subject + ' · ' + grouped(subject.count)), make('span', null, placeOf(subject.first) + (subject.count > 1 ? '\nlast: ' + placeOf(subject.last) : ''))));
  }
  return make('details', null, make('summary', null, 'Where'), subjects);
}
function measureRow(measure) {
  const grave = measure.priority === 1 || measure.priority === 2;
  const verdict = measure.count > 0 ? badge(grouped(measure.count), grave ? 'bad' : '') : measure.measured ? badge('ok', 'good') : badge('not measured', '');
  const limit = make('div', null, measure.limit || '', measure.note ? make('div', {class: 'note'}, measure.note) : null, measure.count > 0 ? measureDetails(measure) : null);
  return [measure.number, measure.name, verdict, limit];
}
function showCheck() {
  const titles = ['Beyond TR 101 290', 'Priority 1', 'Priority 2', 'Priority 3'];
  for (const priority of [1, 2, 3, 0]) {
    const measures = data.check.measures.filter(measure => measure.priority === priority);
    const clause = measures[0].clause ? ' (ETSI TR 101 290, ' + measures[0].clause + ')' : '';
    bodyOf('check').append(make('h3', null, titles[priority] + clause), table(['', 'Measure', 'Found', 'Limit'], measures.map(measureRow)));
  }
}

// Sections

function valueNode(name, value) {
  if (value !== null && typeof value === 'object') return branch(name, value);
  const text = typeof value === 'number' ? value + (value > 9 ? ' (' + hex(value, 2) + ')' : '') : value === null ? '–' : String(value);
  return make('div', {class: 'field'}, make('span', null, name), make('span', {dir: 'auto'}, text));
}
function labelOf(name, value) {
  if (Array.isArray(value)) return name + ' (' + value.length + ')';
  return name + (typeof value.name === 'string' ? ': ' + value.name : '');
}
function branch(name, value) {
  const details = make('details', null, make('summary', null, labelOf(name, value)));
  foldOut(details, value, Array.isArray(value) ? value.length < 4 : false);
  return details;
}
// What is folded is made when it is opened.
function foldOut(details, value, isOpen) {
  details.addEventListener('toggle', () => {
    if (!details.open || details.childElementCount > 1) return;
    const fields = make('div', {class: 'fields'});
    for (const [name, child] of Object.entries(value)) fields.append(valueNode(Array.isArray(value) ? String(Number(name) + 1) : name, child));
    details.append(fields);
  });
  details.open = isOpen;
}
function sectionNode(section) {
  const table = section.table || {};
  const version = table.version_number === undefined ? '' : ', version ' + table.version_number + ', section ' + table.section_number + ' of 0–' + table.last_section_number;
  const extension = table.context_id === undefined ? '' : ' ' + table.context_id;
  const details = make('details', null, make('summary', null, make('b', null, (section.class || 'Section').toUpperCase() + extension), ' ' + hex(section.table_id, 2) + ' on PID ' + hex(section.pid, 4) + version + ' ',
    badge('× ' + grouped(section.count), ''), section.error ? badge(section.error, 'bad') : null));
  foldOut(details, {'first at offset': section.offset, ...table}, false);
  return details;
}
function showSections(sections) {
  const body = bodyOf('sections');
  body.replaceChildren(make('p', {class: 'note'}, grouped(sections.length) + ' of ' + grouped(data.sections.length) + ' different sections' +
    (data.sections_left_out ? '; ' + grouped(data.sections_left_out) + ' more came, for which the page has no room' : '') + '.'));
  const list = make('div');
  body.append(list);
  inParts(list, sections, sectionNode);
}

// Search

const textOfEvent = event => [event.title, nameOf(event), ...event.texts.map(text => text.title + ' ' + text.text)].join(' ').toLowerCase();
let searchable = null;
function search(words) {
  const found = document.getElementById('found'), wanted = words.trim().toLowerCase();
  found.hidden = wanted === '';
  if (wanted === '') { showSections(data.sections); return; }
  if (searchable === null) searchable = {events: data.events.map(textOfEvent), sections: data.sections.map(section => JSON.stringify(section).toLowerCase())};
  const events = data.events.filter((_, i) => searchable.events[i].includes(wanted));
  const sections = data.sections.filter((_, i) => searchable.sections[i].includes(wanted));
  const list = make('div');
  bodyOf('found').replaceChildren(make('p', {class: 'note'}, grouped(events.length) + ' events; ', make('a', {href: '#sections'}, grouped(sections.length) + ' sections'), ' (listed below)'), list);
  inParts(list, events, event => {
    const details = make('details', {class: 'hit'}, make('summary', null, isolated(event.title || '(no title)'), make('span', {class: 'note'}, ' · ', isolated(nameOf(event)), ' · ' + dateOf(event.start).slice(0, 16).replace('T', ' '))));
    details.addEventListener('toggle', () => { if (details.open && details.childElementCount === 1) details.append(make('div', {class: 'about'}, aboutEvent(event))); });
    return details;
  });
  showSections(sections);
}

function start() {
  const name = data.source.split('/').pop() || data.source;
  document.title = 'Report of ' + name;
  document.getElementById('title').textContent = name;
  for (const section of document.querySelectorAll('main > section:not(#found)')) {
    document.getElementById('nav').append(make('a', {href: '#' + section.id}, section.firstElementChild.textContent));
  }
  showOverview();
  showGuide();
  showPids();
  showRepetition();
  showCheck();
  showSections(data.sections);
  let waiting = 0;
  document.getElementById('search').addEventListener('input', event => {
    clearTimeout(waiting);
    waiting = setTimeout(() => search(event.target.value), 150);
  });
}
start();
