// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_batch.h"

#include <new>
#include <utility>

#include "guarded.h"
#include "section.h"

namespace sivane::python {

namespace py = pybind11;

py::object SectionQueue::give(SharedSettings const& settings) {
  SectionView view = views_[next_++];
  view.bytes = bytes_.data() + next_begins_;
  next_begins_ += view.size;
  return make_section(view, settings);
}

namespace {

PyTypeObject* batch_type = nullptr;  // as long as the process

// As the interpreter lays it out.
struct Batch {
  PyObject_HEAD SectionQueue queue;
  SharedSettings settings;
};

void dealloc(PyObject* self) {
  PyTypeObject* const type = Py_TYPE(self);
  Batch& batch = *reinterpret_cast<Batch*>(self);
  batch.queue.~SectionQueue();
  batch.settings.~SharedSettings();
  type->tp_free(self);
  Py_DECREF(type);
}

PyObject* next(PyObject* self) {
  Batch& batch = *reinterpret_cast<Batch*>(self);
  if (batch.queue.is_empty()) return nullptr;
  return new_reference([&batch] { return batch.queue.give(batch.settings); });
}

}  // namespace

py::object make_batch(SectionQueue queue, SharedSettings const& settings) {
  PyObject* const made = batch_type->tp_alloc(batch_type, 0);
  if (made == nullptr) throw py::error_already_set();
  Batch& batch = *reinterpret_cast<Batch*>(made);
  new (&batch.queue) SectionQueue(std::move(queue));
  new (&batch.settings) SharedSettings(settings);
  return py::reinterpret_steal<py::object>(made);
}

void add_batches() {
  PyType_Slot slots[] = {{Py_tp_dealloc, reinterpret_cast<void*>(dealloc)},
                         {Py_tp_iter, reinterpret_cast<void*>(PyObject_SelfIter)},
                         {Py_tp_iternext, reinterpret_cast<void*>(next)},
                         {0, nullptr}};
  PyType_Spec spec = {"sivane._SectionBatch", static_cast<int>(sizeof(Batch)), 0,
                      Py_TPFLAGS_DEFAULT | Py_TPFLAGS_IMMUTABLETYPE | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                      slots};
  PyObject* const type = PyType_FromSpec(&spec);
  if (type == nullptr) throw py::error_already_set();
  batch_type = reinterpret_cast<PyTypeObject*>(type);
}

}  // namespace sivane::python
