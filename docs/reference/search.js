// The search box. Its index is a script, since a page that was opened from a file may fetch nothing
// else, and is loaded when the box is first used.
(function () {
    'use strict';
    const MOST = 60;
    const box = document.getElementById('search');
    const found = document.getElementById('found');
    let asked = false;
    let entries = null;

    window.ombraIndex = function (groups) {
        entries = [];
        for (const [page, kind, names, words] of groups)
            for (const name of names.split(' '))
                entries.push({name, lower: name.toLowerCase(), page, kind, words: words.toLowerCase()});
        show();
    };

    function load() {
        if (asked) return;
        asked = true;
        const script = document.createElement('script');
        script.src = 'search_index.js';
        document.body.appendChild(script);
    }

    // Names in which all words stand come first, the shortest before all; then those where they
    // stand in name, chapter and section together.
    function hits(wanted) {
        const byName = [];
        const byPurpose = [];
        for (const one of entries) {
            if (wanted.every(word => one.lower.includes(word))) byName.push(one);
            else if (one.words && wanted.every(word => one.lower.includes(word) ||
                                                       one.words.includes(word)))
                byPurpose.push(one);
        }
        const order = (a, b) => a.name.length - b.name.length || (a.name < b.name ? -1 : 1);
        return byName.sort(order).concat(byPurpose.sort((a, b) => (a.name < b.name ? -1 : 1)));
    }

    function show() {
        const wanted = box.value.toLowerCase().split(/[^a-z0-9_.]+/).filter(word => word);
        found.textContent = '';
        if (!entries || wanted.length === 0) return;
        const all = hits(wanted);
        for (const one of all.slice(0, MOST)) {
            const line = document.createElement('li');
            const link = document.createElement('a');
            link.href = one.page + '.html#' + one.name;
            link.textContent = one.name;
            line.append(link, ' ' + one.kind);
            found.append(line);
        }
        const rest = document.createElement('li');
        rest.className = 'rest';
        rest.textContent = all.length === 0 ? 'nothing is called that' :
                           all.length > MOST ? (all.length - MOST) + ' more' : '';
        if (rest.textContent) found.append(rest);
    }

    box.addEventListener('focus', load);
    box.addEventListener('input', function () { load(); show(); });
    box.addEventListener('keydown', function (event) {
        const first = found.querySelector('a');
        if (event.key === 'Enter' && first) {
            found.textContent = '';
            location.href = first.href;
        }
    });
    found.addEventListener('click', function () { box.value = ''; setTimeout(show); });
    // index.html?vlan+gport searches at once.
    if (location.search) {
        box.value = decodeURIComponent(location.search.slice(1).replace(/\+/g, ' '));
        load();
    }
})();
